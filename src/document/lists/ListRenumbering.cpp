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

bool Touches(const ListItem& item, Selection edited) {
  return item.start <= edited.end && item.end >= edited.start;
}

/// A number to make others like.
struct Sample {
  CharId format = 0;
  std::u16string blank;
};

class Renumbering {
 public:
  Renumbering(const Document& document, FormatTables& tables, Selection edited)
      : document_(document), tables_(tables), edited_(edited) {}

  std::vector<NumberChange> Changes(const ListItems& found) {
    for (const ListItem& item : found.items)
      if (HasNumber(item) && !samples_.contains(PlaceOf(item)))
        samples_.try_emplace(PlaceOf(item), SampleOf(item));
    for (const ListItem& item : found.items) Item(item);
    for (const Selection& stray : found.stray)
      if (stray.start <= edited_.end && stray.end >= edited_.start) changes_.push_back({stray, {}});
    std::ranges::stable_sort(changes_, {}, [](const NumberChange& c) { return c.range.start; });
    return std::move(changes_);
  }

 private:
  using Place = std::tuple<ListKey::Kind, int, int>;  // list and level

  static bool HasNumber(const ListItem& item) { return item.number.Length() > 0; }
  Place PlaceOf(const ListItem& item) const {
    return {item.key.kind, item.key.number, tables_.paragraphs[item.format].level};
  }
  Sample SampleOf(const ListItem& item) const {
    const Selection number = item.number;
    return {document_.CharFormatAt(number.start),
            NumberText(document_.Text(number.start, number.end)).blank};
  }

  void Item(const ListItem& item) {
    if (!item.counted.text) return;
    const bool touched = Touches(item, edited_);
    if (!HasNumber(item)) return touched ? Give(item) : void();
    const NumberText shown(document_.Text(item.number.start, item.number.end));
    if (shown.own == *item.counted.text) return;
    if (!touched && !LooksLikeNumber(shown.own, item.counted.look)) return;
    const Position end = item.number.start + static_cast<Position>(shown.own.size());
    changes_.push_back(
        {{item.number.start, end}, *item.counted.text, document_.CharFormatAt(item.number.start)});
  }
  void Give(const ListItem& item) {
    const auto sample = samples_.find(PlaceOf(item));
    if (sample == samples_.end() || item.counted.text->empty()) return;
    changes_.push_back({item.number, *item.counted.text + sample->second.blank,
                        AsNewNumber(sample->second.format)});
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
  Selection edited_;
  std::map<Place, Sample> samples_;
  std::vector<NumberChange> changes_;
};

}  // namespace

std::vector<NumberChange> Renumbered(const Document& document, FormatTables& tables,
                                     NoteLists& lists, const std::vector<ListKey>& keys,
                                     Selection edited) {
  return Renumbering(document, tables, edited).Changes(FindListItems(document, lists, keys));
}

ChangedText WithChanges(const Document& document, const std::vector<NumberChange>& changes) {
  const Selection range{changes.front().range.start, changes.back().range.end};
  const LeafList piece = document.Copy(range.start, range.end).leaves;
  std::vector<ParaId> marks;
  piece.ForEachMark(0, piece.Breaks(), [&](ParaId mark) { marks.push_back(mark); });
  const ParaId* mark = marks.data();
  FragmentBuilder builder;
  auto change = changes.begin();
  Position done = range.start;  // everything before it is in the builder, or went
  const auto apply = [&](Position upTo) {
    for (; change != changes.end() && change->range.start <= upTo; ++change) {
      builder.Append(change->text, change->format);
      done = std::max(done, change->range.end);
    }
  };
  piece.ForEachRun(0, piece.Length(), [&](Position at, TextView text, CharId format) {
    at += range.start;
    const Position end = at + static_cast<Position>(text.Size());
    done = std::max(done, at);
    while (done < end) {
      apply(done);
      const Position next =
          change == changes.end() ? end : std::clamp(change->range.start, done, end);
      if (next > done)
        mark = builder.Append(
            text.Part(static_cast<std::size_t>(done - at), static_cast<std::size_t>(next - done)),
            format, mark);
      done = std::max(done, next);
    }
  });
  apply(range.end);
  return {range, builder.Finish()};
}

Position ShiftedBy(const std::vector<NumberChange>& changes, Position position) {
  Position shift = 0;
  for (const auto& [range, text, format] : changes) {
    const auto length = static_cast<Position>(text.size());
    const bool inside = range.start < position && position < range.end;
    if (inside) return range.start + shift + std::min(position - range.start, length);
    if (range.end <= position && (range.start < position || range.Length() == 0))
      shift += length - range.Length();
  }
  return position + shift;
}

}  // namespace lumenote
