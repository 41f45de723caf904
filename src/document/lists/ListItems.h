// The paragraphs of lists in a text, with their visible numbers.
#pragma once
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "document/Document.h"
#include "document/lists/ListCounter.h"

namespace lumenote {

using ListKeys = std::unordered_set<ListKey, ListKeyHash>;

/// A paragraph, or the part of one that is a table cell.
struct ListItem {
  Position start = 0;
  Position end = 0;    // of its text
  Selection number{};  // visible, with the blank behind it; empty, at the start, if there is none
  ParaId format = 0;
  ListKey key{};
  std::optional<std::u16string> counted{};  // see `ListCounter::Next`
};

struct ListItems {
  std::vector<ListItem> items;
  /// Visible numbers that do not begin a paragraph; one may follow an item's own.
  std::vector<Selection> stray;
};

/// The items of `keys`, and what is stray of any list.
ListItems FindListItems(const Document& document, NoteLists& lists, const ListKeys& keys);

}  // namespace lumenote
