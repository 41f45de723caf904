// The system's library of images.
#pragma once
#include <algorithm>
#include <memory>
#include <string>

#include "backends/win32/system/System.h"
#include "document/pictures/Orientation.h"
// Its headers need these names, and this order.
using std::max;
using std::min;
// clang-format off
#include <propidl.h>
#include <gdiplus.h>
// clang-format on

namespace lumenote {

/// Started for as long as this lives. Images made meanwhile must be gone before.
class PictureLibrary {
 public:
  PictureLibrary() { Gdiplus::GdiplusStartup(&token_, &input_, nullptr); }
  ~PictureLibrary() { Gdiplus::GdiplusShutdown(token_); }
  PictureLibrary(const PictureLibrary&) = delete;
  PictureLibrary& operator=(const PictureLibrary&) = delete;

  /// The image in a file; null if it cannot be decoded, or would be huge.
  std::unique_ptr<Gdiplus::Bitmap> Decode(const std::string& file) const;

 private:
  Gdiplus::GdiplusStartupInput input_;
  ULONG_PTR token_ = 0;
};

/// How images are written.
inline constexpr CLSID kBitmapWriter = {
    0x557cf400, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr CLSID kPngWriter = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
void TurnUpright(Gdiplus::Image& image, const Orientation& turn);
/// The image as a file; empty if it cannot be written.
std::string Encoded(Gdiplus::Image& image, const CLSID& writer);

}  // namespace lumenote
