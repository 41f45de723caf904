#include "backends/win32/toolkit/input/MousePoint.h"

#include <cmath>
#include <utility>
#include <windowsx.h>

#include "backends/win32/toolkit/drawing/Units.h"

namespace lumenote {
namespace {

constexpr WORD kSignature = 0x4C4E;  // in the high word of a message's extra information

/// What rounding took away, in twips.
BYTE Lost(float exact, int pixel, Scale scale) {
  return static_cast<BYTE>(static_cast<signed char>(std::lround(exact - scale.Twips(pixel))));
}

float Restored(float rounded, BYTE lost) { return rounded + static_cast<signed char>(lost); }

/// From the corner of the window to that of its client area.
POINT BorderOf(HWND window) {
  RECT outer;
  GetWindowRect(window, &outer);
  POINT inner = {};
  ClientToScreen(window, &inner);
  return {inner.x - outer.left, inner.y - outer.top};
}

}  // namespace

Point PointOf(HWND window, const Message& message) {
  const Scale scale = Scale::Of(window);
  const POINT border = BorderOf(window);
  const Point rounded{scale.Twips(GET_X_LPARAM(message.l) + border.x),
                      scale.Twips(GET_Y_LPARAM(message.l) + border.y)};
  const auto extra = static_cast<DWORD>(GetMessageExtraInfo());
  if (HIWORD(extra) != kSignature) return rounded;
  return {Restored(rounded.x, LOBYTE(LOWORD(extra))), Restored(rounded.y, HIBYTE(LOWORD(extra)))};
}

bool HasMoved(POINT& last, POINT now) {
  const POINT before = std::exchange(last, now);
  return before.x != now.x || before.y != now.y;
}

FineMouse::FineMouse(HWND window, Point exact) {
  const Scale scale = Scale::Of(window);
  const POINT border = BorderOf(window);
  const int x = scale.Pixels(exact.x);
  const int y = scale.Pixels(exact.y);
  pixel_ = MAKELPARAM(x - border.x, y - border.y);
  SetMessageExtraInfo(
      MAKELONG(MAKEWORD(Lost(exact.x, x, scale), Lost(exact.y, y, scale)), kSignature));
}

FineMouse::~FineMouse() { SetMessageExtraInfo(0); }

}  // namespace lumenote
