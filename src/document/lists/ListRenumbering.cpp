#include "document/lists/ListRenumbering.h"

#include <algorithm>
#include <map>
#include <utility>

#include "document/lists/ListItems.h"

namespace lumenote {
namespace {

bool IsBlank(char16_t unit) { return unit == u'\t' || unit == u' ' || unit == u'\u00A0'; }

/// A visible number in parts.
struct NumberText {
  std::u16string own, blank;

  explicit NumberText(std::u16string text) : own(std::move(text)) {
    const auto end = std::find_if_not(own.rbegin(), own.rend(), IsBlank).base();
    blank.assign(end, own.end());
    own.erase(end, own.end());
  }
};

bool Meets(Selection range, Position position) {
  return range.start <= position && position <= range.end;
}

/// A number to make others like.
struct Sample {
  CharId format = 0;
  std::u16string blank;
};

class Renumbering {
 public:
  Renumbering(const Document& document, FormatTables& tables, NoteLists& lists,
              const EditedLists& edited)
      : document_(document), tables_(tables), lists_(lists), edited_(edited) {}

  std::vector<NumberChange> Changes(const ListItems& found) {
    for (const ListItem& item : found.items)
      if (HasNumber(item) && !samples_.contains(PlaceOf(item)))
        samples_.try_emplace(PlaceOf(item), SampleOf(item));
    for (const ListItem& item : found.items) Item(item);
    for (const Selection& stray : found.stray) Stray(stray);
    std::ranges::stable_sort(changes_, {}, [](const NumberChange& c) { return c.range.start; });
    return std::move(changes_);
  }

 private:
  using Place = std::tuple<ListKey::Kind, int, int>;  // list and level

  static bool HasNumber(const ListItem& item) { return item.number.Length() > 0; }
  Place PlaceOf(const ListItem& item) const {
    return {item.key.kind, item.key.number, lists_.LevelOf(item.format)};
  }
  Sample SampleOf(const ListItem& item) const {
    const Selection number = item.number;
    return {document_.CharFormatAt(number.start), TextOf(number).blank};
  }
  NumberText TextOf(Selection number) const {
    return NumberText(document_.Text(number.start, number.end));
  }
  bool Touched(const ListItem& item) const {
    return std::ranges::any_of(edited_.ranges, [&](Selection range) {
      return item.start <= range.end && item.end >= range.start;
    });
  }

  void Item(const ListItem& item) {
    if (!item.counted) return;
    if (!HasNumber(item)) return Touched(item) ? Give(item) : void();
    const NumberText shown = TextOf(item.number);
    if (shown.own == *item.counted) return;
    const bool lost = shown.own.empty() && Touched(item);
    if (!lost && !lists_.CouldNumber(item.format, shown.own)) return;
    const Position end = item.number.start + static_cast<Position>(shown.own.size());
    changes_.push_back(
        {{item.number.start, end}, *item.counted, document_.CharFormatAt(item.number.start)});
  }
  /// A number in which an edit ended goes if a list had given it.
  void Stray(Selection number) {
    const bool touched = std::ranges::any_of(edited_.ranges, [&](Selection range) {
      return Meets(number, range.start) || Meets(number, range.end);
    });
    if (!touched) return;
    const NumberText shown = TextOf(number);
    const bool given = std::ranges::any_of(
        edited_.formats, [&](ParaId format) { return lists_.CouldNumber(format, shown.own); });
    if (given) changes_.push_back({number, {}});
  }
  void Give(const ListItem& item) {
    const auto sample = samples_.find(PlaceOf(item));
    if (sample == samples_.end() || item.counted->empty()) return;
    changes_.push_back(
        {item.number, *item.counted + sample->second.blank, AsNewNumber(sample->second.format)});
  }
  /// The format in a number of its own.
  CharId AsNewNumber(CharId id) {
    CharFormat format = tables_.characters[id];
    KeptField field = tables_.fields[tables_.kept[format.kept].field];
    field.serial = tables_.NextSerial();
    field.outer = 0;
    format.kept = tables_.kept.Intern({.field = tables_.fields.Intern(std::move(field))});
    return tables_.characters.Intern(format);
  }

  const Document& document_;
  FormatTables& tables_;
  NoteLists& lists_;
  const EditedLists& edited_;
  std::map<Place, Sample> samples_;
  std::vector<NumberChange> changes_;
};

}  // namespace

std::vector<NumberChange> Renumbered(const Document& document, FormatTables& tables,
                                     NoteLists& lists, const EditedLists& edited) {
  ListKeys keys;
  for (const ParaId format : edited.formats) keys.insert(lists.KeyOf(format));
  return Renumbering(document, tables, lists, edited).Changes(FindListItems(document, lists, keys));
}

}  // namespace lumenote
