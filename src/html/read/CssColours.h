// The colours that style sheets name.
#pragma once
#include <cstdint>
#include <optional>
#include <string_view>

namespace lumenote {

/// As 0xRRGGBB; the name in small letters.
std::optional<std::uint32_t> ColourCalled(std::string_view name);

}  // namespace lumenote
