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

}  // namespace lumenote
