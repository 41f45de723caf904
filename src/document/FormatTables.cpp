#include "document/FormatTables.h"

namespace lumenote {

FormatTables::FormatTables() {
  fonts.Intern({});
  characters.Intern({});
  paragraphs.Intern({});
  tabs.Intern({});
  kept.Intern({});
  fields.Intern({});
  names.Intern({});
  heads.Intern({});
}

ItemId EmbeddedItem(const FormatTables& tables, const CharFormat& format) {
  const Kept& kept = tables.kept[format.kept];
  return kept.kind == Kept::Kind::Embedded ? kept.self : 0;
}

}  // namespace lumenote
