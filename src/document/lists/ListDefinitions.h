// What a note's source says of its lists: the list table, the overrides, and numbering groups.
#pragma once
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "document/lists/ListLevel.h"

namespace lumenote {

/// The list that paragraphs name by \ls: the list of an id, some of whose levels differ.
struct ListOverride {
  struct Level {
    int number = 0;
    std::optional<int> start{};
    std::optional<ListLevel> format{};
  };
  int list = 0;
  std::vector<Level> levels{};
};

class ListDefinitions {
 public:
  /// The code page of the source's bytes; texts in pages other than 1252 are not readable.
  explicit ListDefinitions(int page = 1252) : page_(page) {}

  /// Reads the tables among the groups of a head; what was read first holds.
  void Read(std::string_view source);

  /// Null for a number that no override has, or one without a list.
  const ListOverride* Override(int number) const;
  /// Whether paragraphs of \ls`number` have a bullet on a level (\ilvl).
  bool IsBullet(int number, int level) const;
  /// The levels of a list, as an override has them.
  ListLevels LevelsOf(const ListOverride& override) const;

 private:
  void ReadLists(std::string_view entries);
  void ReadOverrides(std::string_view entries);

  int page_;
  std::unordered_map<int, std::vector<ListLevel>> lists_;  // by \listid: the levels that it says
  std::unordered_map<int, ListOverride> overrides_;        // by \ls
};

/// The numbers that a group of one paragraph asks for (\pn), which knows one level; empty for
/// bullets, and for groups that do not say enough. `page` is the code page of its bytes.
std::optional<ListLevel> NumberingOf(std::string_view group, int page);

}  // namespace lumenote
