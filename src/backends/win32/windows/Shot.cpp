#include "backends/win32/windows/Shot.h"

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/drawing/PictureLibrary.h"
#include "backends/win32/toolkit/drawing/Units.h"
#include "base/RuntimeError.h"

namespace lumenote {
void SaveWindowShot(HWND window, const std::u16string& path) {
  RECT place;
  GetWindowRect(window, &place);
  const SIZE size = SizeOf(place);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
  const PictureLibrary library;
  Gdiplus::Bitmap shot(size.cx, size.cy, PixelFormat24bppRGB);
  Gdiplus::Graphics canvas(&shot);
  const HDC dc = canvas.GetHDC();
  const HDC shown = GetWindowDC(window);
  BitBlt(dc, 0, 0, size.cx, size.cy, shown, 0, 0, SRCCOPY);
  ReleaseDC(window, shown);
  canvas.ReleaseHDC(dc);
  if (shot.Save(Wide(path), &kPngWriter, nullptr) != Gdiplus::Ok)
    throw RuntimeError(ErrorNumber::PathAccess);
}

}  // namespace lumenote
