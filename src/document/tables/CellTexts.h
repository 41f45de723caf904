// What of a range an edit can remove without taking the tables in it apart.
#pragma once
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// What stands where the range was: text joins the paragraph at the range's start.
enum class Remains { Nothing, Text };

struct CellTexts {
  /// In order; at least one, perhaps empty, the first from the range's start.
  std::vector<Selection> parts;
  /// The note's last row goes, too: its end is the final mark.
  bool takesFinalRow = false;
};

/// The parts of the range without the ends of cells and rows. Whole rows are in a part with their
/// ends if the range has one of its ends outside of their table or consists of rows, which text
/// does not replace. A paragraph is not joined with a table.
CellTexts FindCellTexts(const Document& document, Selection range, Remains remains);

}  // namespace lumenote
