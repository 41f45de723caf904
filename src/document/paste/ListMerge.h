// Maps the lists of one source to those of another, which grows by what it lacks.
#pragma once
#include <climits>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "document/kept/SourceNumbers.h"
#include "document/paste/EntryNumbers.h"

namespace lumenote {

/// Lists are the same if their definitions are, whatever their ids; that of the same id comes
/// first. Different lists never become one.
class ListMerge {
 public:
  /// Both are sources with list tables somewhere, and outlive this object.
  ListMerge(std::string_view from, std::string_view to);

  /// Maps \ls, numbers in definitions by `map`, which is not asked for \ls there; empty for a
  /// number without a list, or if the other source has no number left for it.
  std::optional<int> Map(int number, const NumberMap& map);
  /// What comes to the list table and to that of the overrides.
  const std::string& AddedLists() const { return addedLists_; }
  const std::string& AddedOverrides() const { return addedOverrides_; }

 private:
  struct Table {
    std::unordered_map<int, std::string_view> lists;                      // by \listid
    std::unordered_map<int, std::pair<int, std::string_view>> overrides;  // with \listid, by \ls
  };
  /// The numbers of the other source's definitions.
  class Numbers {
   public:
    /// Definitions may change to numbers in that range.
    Numbers(int least, int most) : least_(least), most_(most) {}
    void Add(const std::string& text, int number);
    /// The number to use for a definition that has this one, and whether it is new; empty if all
    /// are taken.
    std::optional<std::pair<int, bool>> For(const std::string& text, int number);

   private:
    bool InRange(int number) const { return number >= least_ && number <= most_; }

    int least_, most_;
    std::unordered_map<std::string, std::set<int>> same_;  // not used yet, by what they say
    EntryNumbers taken_;
  };

  static Table TableOf(std::string_view source);
  std::optional<int> MapList(int id, const NumberMap& map);

  static constexpr int kHighestOverride = 0xFFFE;  // that a paragraph can hold

  Table from_;
  Numbers listNumbers_{INT_MIN, INT_MAX}, overrideNumbers_{0, kHighestOverride};
  std::unordered_map<int, std::optional<int>> lists_, overrides_;  // known so far
  std::string addedLists_, addedOverrides_;
};

}  // namespace lumenote
