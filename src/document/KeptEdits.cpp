#include "document/KeptEdits.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/Strings.h"

namespace lumenote {
namespace {

using Kind = KeptItem::Kind;

bool IsSection(const KeptItem& item) { return item.kind == Kind::Section; }
bool Begins(const KeptItem& item) { return IsBreak(item) || IsSection(item); }

CharId WithKept(CharId format, const Kept& kept, FormatTables& tables) {
  CharFormat changed = tables.characters[format];
  changed.kept = tables.kept.Intern(kept);
  return tables.characters.Intern(changed);
}

/// The items of `source` that start a page, column or section: all but the definitions of table
/// rows and the groups other than headers. Drops breaks if the target `there` has one, and
/// everything else if it starts a section.
KeptItems SectionStartOf(const ChainTable<KeptItem>& items, ItemId source, ItemId there) {
  const bool breaks = !items.Any(there, IsBreak);
  const bool section = !items.Any(there, IsSection);
  KeptItems sectionStart;
  bool ofRow = false;
  items.ForEach(source, [&](const KeptItem& item) {
    if (item.kind == Kind::Row) ofRow = true;
    if (Begins(item)) ofRow = false;
    const bool format =
        IsSection(item) || item.kind == Kind::PageHeader || (item.kind == Kind::Words && !ofRow);
    if (IsBreak(item) ? breaks : format && section) sectionStart.push_back(item);
  });
  return sectionStart;
}

CharId WithSectionStart(CharId format, FormatTables& tables, KeptId sectionStart) {
  const Kept& from = tables.kept[sectionStart];
  Kept kept = tables.kept[tables.characters[format].kept];
  KeptItems added = SectionStartOf(tables.items, from.before, kept.before);
  if (added.empty()) return format;
  kept.before = tables.items.Chain(std::move(added), kept.before);
  kept.serial = from.serial;
  return WithKept(format, kept, tables);
}

/// Maps the formats of the fragment's first `length` units.
template <class Map>
Fragment Mapped(Fragment fragment, Position length, Map map) {
  LeafList& leaves = fragment.leaves;
  std::vector<ParaId> marks;
  leaves.ForEachMark(0, leaves.BreaksBefore(length), [&](ParaId mark) { marks.push_back(mark); });
  const ParaId* mark = marks.data();
  FragmentBuilder builder;
  leaves.ForEachRun(0, length, [&](Position, TextView text, CharId format) {
    mark = builder.Append(text, map(format), mark);
  });
  leaves.Replace(0, length, builder.Finish().leaves);
  return fragment;
}

}  // namespace

bool StartsSection(const FormatTables& tables, KeptId kept) {
  return tables.items.Any(tables.kept[kept].before, Begins);
}

KeptId SectionStartAt(const Document& document, Position position) {
  const FormatTables& tables = document.Formats();
  const auto keptAt = [&](Position at) {
    return tables.characters[document.CharFormatAt(at)].kept;
  };
  const KeptId kept = keptAt(position);
  if (!StartsSection(tables, kept)) return 0;
  return position > 0 && keptAt(position - 1) == kept ? 0 : kept;
}

Fragment WithSectionStart(Fragment fragment, FormatTables& tables, KeptId sectionStart) {
  const auto map = [&](CharId format) { return WithSectionStart(format, tables, sectionStart); };
  if (fragment.leaves.Empty()) {
    if (fragment.mark) fragment.mark->character = map(fragment.mark->character);
    return fragment;
  }
  const std::u16string start = fragment.leaves.CursorAt(0)->text.View().Part(0, 2).String();
  const Position length = start.front() == u'\r' || IsPairAt(start, 0) ? 2 : 1;
  return Mapped(std::move(fragment), length, map);
}

Fragment WithoutSectionStart(Fragment fragment, FormatTables& tables) {
  const auto keptOf = [&](CharId format) { return tables.characters[format].kept; };
  const KeptId kept = keptOf(fragment.leaves.CursorAt(0)->runs.FormatAt(0));
  if (!StartsSection(tables, kept)) return fragment;
  Position length = 0;
  fragment.leaves.ForEachRun(0, fragment.Length(), [&](Position at, TextView text, CharId format) {
    const bool goesOn = at == length && keptOf(format) == kept;
    if (goesOn) length += static_cast<Position>(text.Size());
  });
  return Mapped(std::move(fragment), length,
                [&](CharId format) { return WithoutSectionStart(format, tables); });
}

CharId WithoutSectionStart(CharId format, FormatTables& tables) {
  const KeptId id = tables.characters[format].kept;
  if (!StartsSection(tables, id)) return format;
  Kept kept = tables.kept[id];
  kept.before = 0;
  kept.serial = 0;
  return WithKept(format, kept, tables);
}

KeptId KeptOfTyping(const Document& document, Selection range) {
  if (range.start == 0) return 0;
  const FormatTables& tables = document.Formats();
  const auto keptAt = [&](Position at) {
    return tables.characters[document.CharFormatAt(at)].kept;
  };
  const KeptId before = keptAt(range.start - 1);
  const KeptId behind = keptAt(range.end);
  const Kept inField{.field = tables.kept[before].field};
  if (tables.kept[behind].field != inField.field) return 0;
  if (tables.kept[before] == inField) return before;
  return tables.kept[behind] == inField ? behind : 0;
}

CharId WithCellFormat(CharId format, FormatTables& tables, const Document::ParaMap& map) {
  Kept kept = tables.kept[tables.characters[format].kept];
  if (kept.kind != Kept::Kind::Cell) return format;
  kept.paragraph = map(kept.paragraph);
  return WithKept(format, kept, tables);
}

void LeaveScripts(CharFormat& format, FormatTables& tables) {
  std::vector<KeptWord> words = tables.words.List(format.words);
  words.erase(std::ranges::find_if(words, IsScript), words.end());
  std::erase_if(words, [](KeptWord word) { return word.kind == KeptWord::Kind::Font; });
  format.words = tables.words.Chain(std::move(words));
}

void LeaveDirections(CharFormat& format, FormatTables& tables) {
  std::vector<KeptWord> words = tables.words.List(format.words);
  std::erase_if(words, [](KeptWord word) { return word.kind == KeptWord::Kind::Size; });
  format.words = tables.words.Chain(std::move(words));
}

void LeaveList(ParaFormat& format, FormatTables& tables) {
  format.list = 0;
  std::vector<KeptWord> words = tables.words.List(format.words);
  std::erase_if(words, [](KeptWord word) { return word.kind == KeptWord::Kind::Numbering; });
  format.words = tables.words.Chain(std::move(words));
}

}  // namespace lumenote
