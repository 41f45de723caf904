// The paragraphs of lists in a text, with their visible numbers.
#pragma once
#include <optional>
#include <vector>

#include "document/Document.h"
#include "document/lists/ListCounter.h"

namespace lumenote {

/// A paragraph, or the part of one that is a table cell.
struct ListItem {
  Position start = 0;
  Position end = 0;    // of its text
  Selection number{};  // visible, with the blank behind it; empty, at the start, if there is none
  ParaId format = 0;
  ListKey key{};
  ListCounter::Number counted{};
};

struct ListItems {
  std::vector<ListItem> items;
  /// Visible numbers that do not begin a paragraph.
  std::vector<Selection> stray;
};

/// The items of `keys`, and what is stray of any list.
ListItems FindListItems(const Document& document, NoteLists& lists,
                        const std::vector<ListKey>& keys);

}  // namespace lumenote
