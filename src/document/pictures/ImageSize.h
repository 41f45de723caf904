// How large an image is, as the beginning of its data says.
#pragma once
#include <optional>
#include <string_view>

#include "document/pictures/PictureSource.h"

namespace lumenote {

struct ImageSize {
  double width = 0;  // twips
  double height = 0;
};
/// Upright, at the resolution that the data state, else at 96 dots per inch. The beginning of the
/// data will do for most images. Empty for data of another type, damaged data and metafiles.
std::optional<ImageSize> SizeOfImage(PictureType type, std::string_view data);

/// The type of a file, of which the beginning will do; only these three are told apart from others.
std::optional<PictureType> TypeOfImage(std::string_view file);

/// A decoder is not asked for more: a few bytes may claim any size.
inline constexpr double kMostImagePixels = 1 << 26;
/// Whether a file of one of those types tells its size, within that limit.
bool IsDecodable(std::string_view file);

}  // namespace lumenote
