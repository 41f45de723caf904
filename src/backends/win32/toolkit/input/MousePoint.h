// Where a mouse message lies, in twips.
#pragma once
#include "backends/win32/toolkit/Window.h"
#include "forms/values/Geometry.h"

namespace lumenote {

/// The point of a mouse message to a window, from the corner of its border. Scripts give points
/// that are finer than pixels: within a `FineMouse` their messages are exact.
Point PointOf(HWND window, const Message& message);

/// Whether the pointer is elsewhere on the screen than it was last, and remembers where: the system
/// also sends moves when a window appears or goes under a pointer at rest.
bool HasMoved(POINT& last, POINT now);

/// Sends along, for a block, what is lost when a point is rounded to a pixel.
class FineMouse {
 public:
  FineMouse(HWND window, Point exact);
  ~FineMouse();
  FineMouse(const FineMouse&) = delete;
  FineMouse& operator=(const FineMouse&) = delete;

  /// The pixel of the client area, as a message carries it.
  LPARAM Pixel() const { return pixel_; }

 private:
  LPARAM pixel_;
};

}  // namespace lumenote
