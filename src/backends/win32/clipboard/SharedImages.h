// Images as programs exchange them.
#pragma once
#include <array>
#include <string>
#include <vector>

#include "backends/win32/clipboard/OfferedData.h"

namespace lumenote {

/// In which images are read.
const std::array<UINT, 6>& ImageFormats();
/// The image in PNG or JPEG, as it comes or made of a bitmap; none if there is no whole one. The
/// format that is offered first is the image's own.
std::vector<std::string> ReadImages(const OfferedData& data);
/// A file of any format that the system reads, in PNG; empty if it is no image, or a huge one.
std::string PngOf(const std::string& file);

/// A format and what is offered in it.
struct ImageForm {
  UINT format = 0;
  std::string bytes{};
};
/// A file in PNG or JPEG, the forms in which other programs take it: as it is, and as a bitmap.
std::vector<ImageForm> FormsOf(const std::string& file);

}  // namespace lumenote
