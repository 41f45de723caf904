// Colours that are not the system's own.
#pragma once
#include "backends/win32/system/System.h"

namespace lumenote {

/// Black or white, whichever contrasts more.
constexpr COLORREF InkOn(COLORREF ground) {
  const int grey = 11 * GetRValue(ground) + 16 * GetGValue(ground) + 5 * GetBValue(ground);
  return grey >= 128 * 32 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

/// Blends `share` (0 to 1) of the other colour into the first.
constexpr COLORREF Mixed(COLORREF one, COLORREF other, double share) {
  const auto mix = [=](int a, int b) { return static_cast<BYTE>(a + (b - a) * share); };
  return RGB(mix(GetRValue(one), GetRValue(other)), mix(GetGValue(one), GetGValue(other)),
             mix(GetBValue(one), GetBValue(other)));
}

/// The colour of a line that stands out from the ground as little as it may.
constexpr COLORREF LineOn(COLORREF ground, COLORREF ink) { return Mixed(ground, ink, 0.25); }

/// The user has asked for a few strong colours: nothing else is to be painted in another one.
bool HighContrast();

}  // namespace lumenote
