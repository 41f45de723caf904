// The size of the pixels in which HTML measures pictures and tables.
#pragma once

namespace lumenote {

inline constexpr int kTwipsPerPixel = 15;

}  // namespace lumenote
