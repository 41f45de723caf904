#include "backends/win32/windows/Shot.h"

#include <algorithm>
// The system's own header needs these names, and its headers this order.
using std::max;
using std::min;
// clang-format off
#include <propidl.h>
#include <gdiplus.h>
// clang-format on

#include "backends/win32/toolkit/Gdi.h"
#include "backends/win32/toolkit/NativeText.h"
#include "backends/win32/toolkit/Units.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

/// The system's picture library, for a block.
class Pictures {
 public:
  Pictures() { Gdiplus::GdiplusStartup(&token_, &input_, nullptr); }
  ~Pictures() { Gdiplus::GdiplusShutdown(token_); }
  Pictures(const Pictures&) = delete;
  Pictures& operator=(const Pictures&) = delete;

 private:
  Gdiplus::GdiplusStartupInput input_;
  ULONG_PTR token_ = 0;
};

constexpr CLSID kPng = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

}  // namespace

void SaveWindowShot(HWND window, const std::u16string& path) {
  RECT place;
  GetWindowRect(window, &place);
  const SIZE size = SizeOf(place);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  const Pictures pictures;
  Gdiplus::Bitmap shot(size.cx, size.cy, PixelFormat24bppRGB);
  Gdiplus::Graphics canvas(&shot);
  const HDC dc = canvas.GetHDC();
  const HDC shown = GetWindowDC(window);
  BitBlt(dc, 0, 0, size.cx, size.cy, shown, 0, 0, SRCCOPY);
  ReleaseDC(window, shown);
  canvas.ReleaseHDC(dc);
  if (shot.Save(Wide(path), &kPng, nullptr) != Gdiplus::Ok)
    throw RuntimeError(ErrorNumber::PathAccess);
}

}  // namespace lumenote
