#include "document/paste/HeadMerge.h"

#include <algorithm>

#include "base/codepages/CodePage.h"
#include "document/kept/SourceGroups.h"

namespace lumenote {

std::string HeadSource(const KeptItems& items) {
  std::string source;
  for (const KeptItem& item : items) source += item.source;
  return source;
}

HeadMerge::HeadMerge(const KeptHead& from, std::string_view source, FormatTables& tables, HeadId to)
    : from_(from),
      tables_(tables),
      unchanged_(to),
      to_(tables.heads[to]),
      items_(tables.items.List(to_.items)),
      toSource_(HeadSource(items_)),
      styles_(source, toSource_),
      lists_(source, toSource_) {
  for (const KeptHead::Font& font : to_.fonts) {
    fonts_.try_emplace(font.font, font.number);
    fontsByNumber_.try_emplace(font.number, font.font);
    fontNumbers_.Take(font.number);
  }
  if (to_.colours.empty()) to_.colours.push_back(kAutoColour);
  for (std::size_t i = to_.colours[0] == kAutoColour ? 0 : 1; i < to_.colours.size(); ++i)
    colours_.try_emplace({to_.colours[i], TintOf(to_, i)}, static_cast<int>(i));
}

std::optional<int> HeadMerge::Map(HeadTable table, int number) {
  switch (table) {
    case HeadTable::Fonts:
      return MapFont(number);
    case HeadTable::Colours:
      return MapColour(number);
    case HeadTable::Styles:
      UseTables();
      return styles_.Map(number);
    case HeadTable::Overrides:
      UseTables();
      return lists_.Map(number, NumbersOfGroups());
    default:
      return number;
  }
}

std::string HeadMerge::Mapped(std::string_view source) {
  NumberMap map = NumbersOfGroups();
  const bool ownFont = from_.defaultFont >= 0 && source.find("\\plain") != source.npos;
  const int font = ownFont ? MapFont(from_.defaultFont) : -1;
  if (font != to_.defaultFont) map.plainFont = font;
  return WithNumbers(source, map);
}

/// In a group every number must stay one; 0 is the default of all tables.
NumberMap HeadMerge::NumbersOfGroups() {
  return {[this](HeadTable table, int number) { return Map(table, number).value_or(0); }};
}

// From now on the other head keeps its tables.
void HeadMerge::UseTables() {
  changed_ = true;
  if (std::exchange(to_.tables, true)) return;
  for (KeptHead::Font& font : to_.fonts) font.added = to_.fontTable.empty();
}

int HeadMerge::MapFont(int number) {
  UseTables();
  const auto [known, isNew] = knownFonts_.try_emplace(number, 0);
  if (!isNew) return known->second;
  const auto font = std::ranges::lower_bound(from_.fonts, number, {}, &KeptHead::Font::number);
  const bool defined = font != from_.fonts.end() && font->number == number;
  return known->second = defined ? AddFont(*font) : std::max(to_.defaultFont, 0);
}

int HeadMerge::AddFont(const KeptHead::Font& font) {
  const auto there = fontsByNumber_.find(font.number);
  if (there != fontsByNumber_.end() && there->second == font.font) return font.number;
  const auto [entry, isNew] = fonts_.try_emplace(font.font, 0);
  if (!isNew) return entry->second;
  const int number = entry->second = fontNumbers_.TakeFree(font.number);
  fontsByNumber_.try_emplace(number, font.font);
  const int page = CodePageOfCharset(tables_.fonts[font.font].charset);
  to_.fonts.push_back({number, font.font, page, true});
  return number;
}

/// For many readers entry 0 is automatic, whatever the table says.
int HeadMerge::MapColour(int number) {
  UseTables();
  const auto from = static_cast<std::size_t>(number);
  if (number <= 0 || from >= from_.colours.size()) return 0;
  const Tinted colour{from_.colours[from], TintOf(from_, from)};
  if (from < to_.colours.size() && to_.colours[from] == colour.first &&
      TintOf(to_, from) == colour.second)
    return number;
  const auto [entry, isNew] = colours_.try_emplace(colour, static_cast<int>(to_.colours.size()));
  if (!isNew) return entry->second;
  to_.colours.push_back(colour.first);
  to_.tints.resize(to_.colours.size());
  to_.tints.back() = colour.second;
  return entry->second;
}

std::string HeadMerge::AddedStyles() {
  const NumberMap map = NumbersOfGroups();
  std::string added;
  for (std::string style = styles_.TakeAdded(map); !style.empty(); style = styles_.TakeAdded(map))
    added += style;
  return added;
}

void HeadMerge::AddTo(std::string_view word, std::string_view opening, const std::string& entries,
                      KeptItems& made) {
  if (entries.empty()) return;
  for (KeptItem& item : items_) {
    for (const SourceGroup& group : GroupsOf(item.source)) {
      if (group.word != word) continue;
      const char* const end = group.source.data() + group.source.size() - 1;
      item.source.insert(static_cast<std::size_t>(end - item.source.data()), entries);
      return;
    }
  }
  made.push_back({.source = std::string(opening) + entries + "}"});
}

HeadId HeadMerge::Finish() {
  if (!changed_) return unchanged_;
  KeptItems made;
  AddTo("stylesheet", "{\\stylesheet", AddedStyles(), made);
  AddTo("listtable", "{\\*\\listtable", lists_.AddedLists(), made);
  AddTo("listoverridetable", "{\\*\\listoverridetable", lists_.AddedOverrides(), made);
  items_.insert(items_.begin(), made.begin(), made.end());
  to_.items = tables_.items.Chain(std::move(items_));
  std::ranges::sort(to_.fonts, {}, &KeptHead::Font::number);
  return tables_.heads.Intern(std::move(to_));
}

}  // namespace lumenote
