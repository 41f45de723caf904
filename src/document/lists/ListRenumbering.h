// The visible numbers that an edit makes wrong, and what they become.
#pragma once
#include <string>
#include <vector>

#include "document/Document.h"
#include "document/lists/ListCounter.h"

namespace lumenote {

/// A visible number that changes, comes (`range` is empty) or goes (`text` is).
struct NumberChange {
  Selection range;
  std::u16string text;
  CharId format = 0;
};

/// What an edit that left its text at `edited` changes in the lists `keys`, in order. A paragraph
/// that the edit touched gets the number that it lacks, if its list shows any; other numbers change
/// only if they look as the list says.
std::vector<NumberChange> Renumbered(const Document& document, FormatTables& tables,
                                     NoteLists& lists, const std::vector<ListKey>& keys,
                                     Selection edited);

/// The text from the first change to the last, changed.
struct ChangedText {
  Selection range;
  Fragment fragment;
};
ChangedText WithChanges(const Document& document, const std::vector<NumberChange>& changes);
/// Where a position comes to lie: behind a number that comes at it.
Position ShiftedBy(const std::vector<NumberChange>& changes, Position position);

}  // namespace lumenote
