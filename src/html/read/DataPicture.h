// Pictures that a source holds in itself.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// The kept group of the picture in a "data:" address, if it is PNG or JPEG; width and height in
/// twips, 0 for the picture's own.
std::optional<std::string> ReadDataPicture(std::u16string_view address, int width, int height);

}  // namespace lumenote
