// How links look unless told otherwise.
#pragma once
#include "document/formats/Formats.h"

namespace lumenote {

/// Blue, as in browsers; links are underlined, too.
inline constexpr Colour kLinkColour = 0xEE0000;

}  // namespace lumenote
