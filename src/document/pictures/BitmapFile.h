// Bitmaps as files, which every toolkit reads.
#pragma once
#include <string>

#include "document/pictures/PictureSource.h"

namespace lumenote {

/// The file of a picture that is a bitmap, of either kind; empty if it is damaged, or of colours
/// that its source does not tell.
std::string BitmapFile(const PictureSource& picture);

}  // namespace lumenote
