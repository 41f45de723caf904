#include "backends/win32/toolkit/drawing/Units.h"

#include <algorithm>
#include <cmath>

#include "backends/win32/toolkit/drawing/Gdi.h"
#include "base/Twips.h"

namespace lumenote {
namespace {

constexpr double kMaxPixels = 16384;

// Systems before Windows 10 have one resolution for all screens.
UINT DpiOfWindow(HWND window) {
  using Ask = UINT(WINAPI*)(HWND);
  static const auto ask = reinterpret_cast<Ask>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
  return ask && window ? ask(window) : 0;
}

}  // namespace

Scale Scale::Of(HWND window) {
  if (const UINT dpi = DpiOfWindow(window)) return Scale(static_cast<int>(dpi));
  return Scale(GetDeviceCaps(DcScope(nullptr).Get(), LOGPIXELSY));
}

int Scale::Pixels(double twips) const {
  return static_cast<int>(
      std::lround(std::clamp(twips * dpi_ / kTwipsPerInch, -kMaxPixels, kMaxPixels)));
}

RECT Scale::Pixels(const Rect& twips) const {
  return {Pixels(twips.left), Pixels(twips.top), Pixels(double{twips.left} + twips.width),
          Pixels(double{twips.top} + twips.height)};
}

float Scale::Twips(double pixels) const {
  return static_cast<float>(pixels * kTwipsPerInch / dpi_);
}

}  // namespace lumenote
