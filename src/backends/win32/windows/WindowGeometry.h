// Translates a native window's geometry to its form's and back.
#pragma once
#include "backends/win32/toolkit/drawing/Units.h"

namespace lumenote {

/// A form's geometry is asked for in whole pixels. Only differences from what the window settled at
/// are the user's doing and go back to the form, so opening and closing a window leaves its twips
/// unchanged.
class WindowGeometry {
 public:
  /// Without the nominal decorations.
  static SIZE ClientSize(const Rect& bounds, Scale scale);
  /// Moves and resizes the window so that its client area has the form's size.
  static void Place(HWND window, const Rect& bounds, Scale scale);

  /// The answer to WM_GETMINMAXINFO: a form may be smaller than a caption and larger than a screen.
  static void AllowAnySize(MINMAXINFO& limits);

  /// Where the window is now is where the form is.
  void Settle(HWND window);
  /// The form's bounds once what the user has done to the window since it settled is added;
  /// settles.
  Rect Followed(HWND window, const Rect& bounds, Scale scale);

 private:
  POINT corner_ = {};
  SIZE client_ = {};
};

}  // namespace lumenote
