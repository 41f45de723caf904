// How a photograph is turned to stand upright, as its camera says.
#pragma once
#include <string_view>

#include "document/pictures/PictureFrame.h"

namespace lumenote {

/// Rows and columns are exchanged first, then the image is mirrored left to right, upside down.
struct Orientation {
  bool exchanged = false;
  bool mirrored = false;
  bool upsideDown = false;
  bool operator==(const Orientation&) const = default;
};

/// As a JPEG's Exif data say, which stand near its beginning; upright for other files.
Orientation OrientationOf(std::string_view file);
/// The same, but upright where the frame has the shape of the image as it is: who wrote the frame
/// has not turned the image.
Orientation OrientationIn(const PictureFrame& frame, std::string_view file);
/// The frame with its part as that of the image before it is turned.
PictureFrame BeforeTurning(const PictureFrame& frame, const Orientation& turn);

}  // namespace lumenote
