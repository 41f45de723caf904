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
struct ListKeyHash {
  std::size_t operator()(const ListKey& key) const {
    return std::hash<int>()(key.number) ^ static_cast<std::size_t>(key.kind);
  }
};

/// The lists of a note, by its paragraphs' formats.
class NoteLists {
 public:
  NoteLists(const FormatTables& tables, HeadId head);

  /// None for paragraphs outside of lists, with bullets, and of lists that the source does not
  /// define.
  ListKey KeyOf(ParaId paragraph);
  const ListDefinitions& Definitions() const { return definitions_; }
  /// The levels of paragraphs in a list, which numbers of `LevelOf` show.
  const ListLevels& LevelsOf(ParaId paragraph);
  int LevelOf(ParaId paragraph) const;
  /// Whether the paragraph's list could give it that number, whatever it counts.
  bool CouldNumber(ParaId paragraph, std::u16string_view text);

 private:
  std::optional<NameId> GroupName(const ParaFormat& format) const;
  std::optional<ListLevels> Group(std::string_view source) const;

  const FormatTables& tables_;
  int page_;  // code page of the source's bytes
  ListDefinitions definitions_;
  std::unordered_map<int, std::optional<ListLevels>> groups_;  // of \pn, by name
  std::unordered_map<int, ListLevels> overrides_;              // by number
};

/// Meets the paragraphs of a note in order.
class ListCounter {
 public:
  ListCounter(const FormatTables& tables, NoteLists& lists) : tables_(tables), lists_(lists) {}

  /// The next paragraph's number; empty where the list does not say it, and for paragraphs without
  /// one.
  std::optional<std::u16string> Next(ParaId paragraph);

 private:
  struct Counted {
    ListNumbers numbers{};
    std::array<bool, kListLevels> begun{};
    int override = -1;  // that `levels` are of
    const ListLevels* levels = nullptr;
  };
  /// Adjacent paragraphs of one group; those indented further may stand among them.
  struct Series {
    int group = 0;
    std::int32_t left = 0;
    int number = 0;
  };

  std::optional<std::u16string> OfTable(ParaId paragraph);
  void UseOverride(Counted& list, const ListOverride& override, ParaId paragraph);
  std::optional<std::u16string> OfGroup(int group, const ListLevels& levels, std::int32_t left);
  void LeaveSeries(std::int32_t left, bool item);

  const FormatTables& tables_;
  NoteLists& lists_;
  std::unordered_map<int, Counted> counted_;  // by \listid
  std::unordered_map<int, bool> met_;         // overrides, by number
  std::vector<Series> series_;                // open ones, by indent
};

}  // namespace lumenote
