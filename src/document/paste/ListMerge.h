// Maps the lists of one source to those of another, which grows by what it lacks.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "document/kept/SourceNumbers.h"

namespace lumenote {

/// Lists are the same if their definitions are, whatever their ids; that of the same id comes
/// first. Different lists never become one.
class ListMerge {
 public:
  /// Both are sources with list tables somewhere, and outlive this object.
  ListMerge(std::string_view from, std::string_view to);

  /// Maps \ls, numbers in definitions by `map`; empty for a number without a list.
  std::optional<int> Map(int number, const NumberMap& map);
  /// What comes to the list table and to that of the overrides.
  const std::string& AddedLists() const { return addedLists_; }
  const std::string& AddedOverrides() const { return addedOverrides_; }

 private:
  struct Table {
    std::unordered_map<int, std::string_view> lists;                      // by \listid
    std::unordered_map<int, std::pair<int, std::string_view>> overrides;  // with \listid, by \ls
  };
  /// The numbers of definitions that are not used yet, by what these say.
  using Same = std::unordered_map<std::string, std::unordered_set<int>>;

  static Table TableOf(std::string_view source);
  /// The number to use for a definition, and whether it is new.
  struct Numbers {
    Same same;
    std::unordered_set<int> taken;
    int next = 1;

    void Add(const std::string& text, int number);
    std::pair<int, bool> For(const std::string& text, int number);
  };
  std::optional<int> MapList(int id, const NumberMap& map);

  Table from_;
  Numbers listNumbers_, overrideNumbers_;                          // of the other source
  std::unordered_map<int, std::optional<int>> lists_, overrides_;  // known so far
  std::string addedLists_, addedOverrides_;
};

}  // namespace lumenote
