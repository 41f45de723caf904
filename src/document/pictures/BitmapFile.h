// Bitmaps as files, which every toolkit reads.
#pragma once
#include <string>
#include <string_view>

#include "document/pictures/PictureSource.h"

namespace lumenote {

/// The file of a picture that is a bitmap, of either kind; empty if it is damaged, or of colours
/// that its source does not tell.
std::string BitmapFile(const PictureSource& picture);
/// The same of a file without its first header, as programs exchange it.
std::string BitmapFile(std::string_view bitmap);

}  // namespace lumenote
