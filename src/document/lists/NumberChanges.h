// Applies changes of visible numbers to a text.
#pragma once
#include <string>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// A visible number that changes, comes (`range` is empty) or goes (`text` is).
struct NumberChange {
  Selection range;
  std::u16string text;
  CharId format = 0;
};

/// The text from the first change to the character behind the last, changed. What the source says
/// at a number that goes (the start of a page, a bookmark) moves to what follows.
struct ChangedText {
  Selection range;
  Fragment fragment;
};
/// `changes` are in order, and at least one.
ChangedText WithChanges(const Document& document, FormatTables& tables,
                        const std::vector<NumberChange>& changes);
/// Where a position comes to lie: behind a number that comes at it.
Position ShiftedBy(const std::vector<NumberChange>& changes, Position position);

}  // namespace lumenote
