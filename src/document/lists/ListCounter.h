// Counts the items of lists.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "document/FormatTables.h"
#include "document/lists/ListDefinitions.h"

namespace lumenote {

/// Identifies what counts together: a list of the table, or the paragraphs of one \pn group.
struct ListKey {
  enum class Kind : std::uint8_t { None, Table, Group };
  Kind kind = Kind::None;
  int number = 0;  // \listid, or the group's name
  bool operator==(const ListKey&) const = default;
};

/// The lists of a note, by its paragraphs' formats.
class NoteLists {
 public:
  NoteLists(const FormatTables& tables, HeadId head);

  /// None for paragraphs outside of lists, with bullets, and of lists that the source does not
  /// define.
  ListKey KeyOf(ParaId paragraph);
  const ListDefinitions& Definitions() const { return definitions_; }
  const ListLevel& Group(const ListKey& key) const { return *groups_.at(key.number); }

 private:
  std::optional<NameId> GroupName(const ParaFormat& format) const;

  const FormatTables& tables_;
  ListDefinitions definitions_;
  std::unordered_map<int, std::optional<ListLevel>> groups_;  // of \pn, by name
};

/// Meets the paragraphs of a note in order.
class ListCounter {
 public:
  ListCounter(const FormatTables& tables, NoteLists& lists) : tables_(tables), lists_(lists) {}

  /// How the next paragraph's number looks; `text` is empty where the list does not say it, and
  /// for paragraphs without a number.
  struct Number {
    std::optional<std::u16string> text;
    std::u16string look;  // see `ListLevel::text`
  };
  Number Next(ParaId paragraph);

 private:
  struct Counted {
    ListNumbers numbers{};
    std::array<bool, kListLevels> begun{};
    int override = -1;  // that `levels` are of
    ListLevels levels;
  };
  /// Adjacent paragraphs of one group; those indented further may stand among them.
  struct Series {
    int group = 0;
    std::int32_t left = 0;
    int number = 0;
  };

  Number OfTable(const ParaFormat& format);
  void UseOverride(Counted& list, const ListOverride& override, int number);
  Number OfGroup(const ListKey& key, std::int32_t left);
  void LeaveSeries(std::int32_t left, bool item);

  const FormatTables& tables_;
  NoteLists& lists_;
  std::unordered_map<int, Counted> counted_;  // by \listid
  std::unordered_map<int, bool> met_;         // overrides, by number
  std::vector<Series> series_;                // open ones, by indent
};

}  // namespace lumenote
