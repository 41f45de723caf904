// The control words for font families, by their number in `FontFace`.
#pragma once
#include <array>
#include <string_view>

namespace lumenote {

inline constexpr std::array<std::string_view, 8> kFontFamilies = {
    "fnil", "froman", "fswiss", "fmodern", "fscript", "fdecor", "ftech", "fbidi"};

}  // namespace lumenote
