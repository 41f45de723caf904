// The paragraphs of a range, and the table rows that they form.
#pragma once
#include <vector>

#include "document/Document.h"

namespace lumenote {

inline constexpr int kDeepestTable = 30;  // tables within tables

/// Text that ends at a break, at the end of a cell, or with the range.
struct CellParagraph {
  Position start = 0;
  Position end = 0;
  CharId ender = 0;  // the format of what ends it
  ParaId format = 0;
  bool endsCell = false;  // before the row's last one, which the row ends
  bool endsRow = false;
  int level = 0;  // of the table that it lies in or whose cell or row it ends; 0 none
};

/// Whether the break at the range's end is part of it.
enum class LastBreak { Outside, Inside };

/// In order. Rows count whose end is in the range; cells outside of rows are text with tabs, and so
/// are tables that are nested deeper than `kDeepestTable`.
std::vector<CellParagraph> FindCellParagraphs(const Document& document, Selection range,
                                              LastBreak last = LastBreak::Outside);

}  // namespace lumenote
