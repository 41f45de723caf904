// Colours that are not the system's own.
#pragma once
#include "backends/win32/system/System.h"

namespace lumenote {

/// Black or white, whichever contrasts more.
constexpr COLORREF InkOn(COLORREF ground) {
  const int grey = 11 * GetRValue(ground) + 16 * GetGValue(ground) + 5 * GetBValue(ground);
  return grey >= 128 * 32 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

/// The colour of a line that stands out from the ground as little as it may.
constexpr COLORREF LineOn(COLORREF ground, COLORREF ink) {
  const auto mix = [](int one, int other) { return static_cast<BYTE>((3 * one + other) / 4); };
  return RGB(mix(GetRValue(ground), GetRValue(ink)), mix(GetGValue(ground), GetGValue(ink)),
             mix(GetBValue(ground), GetBValue(ink)));
}

/// The user has asked for a few strong colours: nothing else is to be painted in another one.
bool HighContrast();

}  // namespace lumenote
