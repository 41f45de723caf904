// Inline styles: the declarations of style="...".
#pragma once
#include <string_view>

#include "document/FormatTables.h"
#include "html/read/Look.h"

namespace lumenote {

/// Adds what the declarations change; unknown properties and values are skipped. Fonts are interned
/// in `formats`.
void ReadStyle(std::u16string_view declarations, FormatTables& formats, LookChange& change);
/// The same for a list of font names, of which the first one that is no general family counts.
void ReadFontFamily(std::u16string_view names, FormatTables& formats, LookChange& change);
/// The same for "left", "right", "center", "justify".
void ReadAlignment(std::u16string_view text, LookChange& change);

}  // namespace lumenote
