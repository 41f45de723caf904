// Which fonts stand in for characters that a font lacks.
#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// Installed families, in the order to try: those that the system links to `family`, then those
/// that are known to cover much.
const std::vector<std::u16string>& LinkedFamilies(std::u16string_view family);

}  // namespace lumenote
