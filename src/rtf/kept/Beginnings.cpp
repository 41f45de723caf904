#include "rtf/kept/Beginnings.h"

#include <string>
#include <utility>
#include <vector>

#include "base/Strings.h"
#include "rtf/kept/KeptWords.h"

namespace lumenote {
namespace {

CharId WithKept(CharId format, const Kept& kept, FormatTables& tables) {
  CharFormat changed = tables.characters[format];
  changed.kept = tables.kept.Intern(kept);
  return tables.characters.Intern(changed);
}

CharId WithBeginning(CharId format, FormatTables& tables, KeptId beginning) {
  const Kept& from = tables.kept[beginning];
  Kept kept = tables.kept[tables.characters[format].kept];
  const std::string added = BeginningIn(from.before, kept.before);
  if (added.empty()) return format;
  kept.before.insert(0, added);
  kept.serial = from.serial;
  return WithKept(format, kept, tables);
}

/// The fragment with the formats of its first `length` units mapped.
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

KeptId BeginningAt(const Document& document, Position position) {
  const FormatTables& tables = document.Formats();
  const auto keptAt = [&](Position at) {
    return tables.characters[document.CharFormatAt(at)].kept;
  };
  const KeptId kept = keptAt(position);
  if (kept == 0 || !BeginsPlace(tables.kept[kept].before)) return 0;
  return position > 0 && keptAt(position - 1) == kept ? 0 : kept;
}

Fragment WithBeginning(Fragment fragment, FormatTables& tables, KeptId beginning) {
  const auto map = [&](CharId format) { return WithBeginning(format, tables, beginning); };
  if (fragment.leaves.Empty()) {
    if (fragment.mark) fragment.mark->character = map(fragment.mark->character);
    return fragment;
  }
  const std::u16string start = fragment.leaves.CursorAt(0)->text.View().Part(0, 2).String();
  const Position length = start.front() == u'\r' || IsPairAt(start, 0) ? 2 : 1;
  return Mapped(std::move(fragment), length, map);
}

Fragment WithoutBeginning(Fragment fragment, FormatTables& tables) {
  const auto keptOf = [&](CharId format) { return tables.characters[format].kept; };
  const KeptId kept = keptOf(fragment.leaves.CursorAt(0)->runs.FormatAt(0));
  if (!BeginsPlace(tables.kept[kept].before)) return fragment;
  Position length = 0;
  fragment.leaves.ForEachRun(0, fragment.Length(), [&](Position at, TextView text, CharId format) {
    const bool goesOn = at == length && keptOf(format) == kept;
    if (goesOn) length += static_cast<Position>(text.Size());
  });
  return Mapped(std::move(fragment), length,
                [&](CharId format) { return WithoutBeginning(format, tables); });
}

CharId WithoutBeginning(CharId format, FormatTables& tables) {
  Kept kept = tables.kept[tables.characters[format].kept];
  if (!BeginsPlace(kept.before)) return format;
  kept.before.clear();
  kept.serial = 0;
  return WithKept(format, kept, tables);
}

}  // namespace lumenote
