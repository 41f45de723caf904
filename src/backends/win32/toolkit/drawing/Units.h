// Twips and pixels: the one place that knows of a screen's resolution.
#pragma once
#include "backends/win32/system/System.h"
#include "forms/values/Geometry.h"

namespace lumenote {

/// Converts lengths for a window on a screen of `dpi` dots per inch.
class Scale {
 public:
  explicit Scale(int dpi) : dpi_(dpi) {}
  /// That of the screen a window is on; null for the main screen.
  static Scale Of(HWND window);

  int Dpi() const { return dpi_; }
  /// Rounded to the nearest pixel; clamped to what any screen can show.
  int Pixels(double twips) const;
  /// Each edge is rounded by itself, so that neighbours neither gap nor overlap.
  RECT Pixels(const Rect& twips) const;
  float Twips(double pixels) const;
  bool operator==(const Scale&) const = default;

 private:
  int dpi_;
};

constexpr SIZE SizeOf(const RECT& rect) { return {rect.right - rect.left, rect.bottom - rect.top}; }

/// The part of a form's outer size that is not client area: 8 pixels of borders, and 27 of borders
/// and caption, in twips.
inline constexpr double kDecorationWidth = 120;
inline constexpr double kDecorationHeight = 405;
/// Height of the menu bar, and of the status bar, in twips.
inline constexpr double kBarHeight = 300;

}  // namespace lumenote
