#include "document/KeptBefore.h"

#include <utility>

namespace lumenote {
namespace {

/// What joins again and again, as when text is deleted character by character, must not grow
/// without end: every length that there was stays in the tables.
constexpr std::size_t kMostJoined = 1 << 14;

CharId WithKept(FormatTables& tables, CharId format, Kept kept) {
  CharFormat changed = tables.characters[format];
  changed.kept = tables.kept.Intern(std::move(kept));
  return tables.characters.Intern(changed);
}

}  // namespace

KeptId KeptBefore(const Document& document, Position position) {
  const FormatTables& tables = document.Formats();
  const auto keptAt = [&](Position at) {
    return tables.characters[document.CharFormatAt(at)].kept;
  };
  const KeptId kept = keptAt(position);
  const bool begins = position == 0 || keptAt(position - 1) != kept;
  return begins && !tables.kept[kept].before.empty() ? kept : 0;
}

CharId WithKeptBefore(FormatTables& tables, CharId format, KeptId kept) {
  const Kept& added = tables.kept[kept];
  Kept joined = tables.kept[tables.characters[format].kept];
  if (!joined.before.empty() && joined.before.size() + added.before.size() > kMostJoined)
    return format;
  joined.before.insert(0, added.before);
  joined.serial = added.serial;
  return WithKept(tables, format, std::move(joined));
}

CharId WithoutKeptBefore(FormatTables& tables, CharId format) {
  Kept bare = tables.kept[tables.characters[format].kept];
  bare.before.clear();
  bare.serial = 0;
  return WithKept(tables, format, std::move(bare));
}

}  // namespace lumenote
