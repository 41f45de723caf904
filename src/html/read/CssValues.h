// Values of style sheets: lengths and colours.
#pragma once
#include <optional>
#include <string_view>

#include "html/read/Look.h"

namespace lumenote {

/// A number at the start of `text`, which loses it.
std::optional<double> TakeNumber(std::u16string_view& text);
/// "12pt", "1.5em", "150%", "0"; empty for anything else, a bare number included.
std::optional<CssLength> ReadLength(std::u16string_view text);
/// "larger", "x-small" or a length.
std::optional<CssLength> ReadFontSize(std::u16string_view text);
/// "#rgb", "rgb(...)", a name, "rrggbb" as in old attributes; `kAutoColour` for "transparent" and
/// "windowtext".
std::optional<Colour> ReadColour(std::u16string_view text);

}  // namespace lumenote
