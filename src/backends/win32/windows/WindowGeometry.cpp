#include "backends/win32/windows/WindowGeometry.h"

#include <algorithm>

namespace lumenote {
namespace {

RECT OuterOf(HWND window) {
  RECT rect;
  GetWindowRect(window, &rect);
  return rect;
}

RECT ClientOf(HWND window) {
  RECT rect;
  GetClientRect(window, &rect);
  return rect;
}

}  // namespace

SIZE WindowGeometry::ClientSize(const Rect& bounds, Scale scale) {
  const int width = scale.Pixels(bounds.width) - scale.Pixels(kDecorationWidth);
  const int height = scale.Pixels(bounds.height) - scale.Pixels(kDecorationHeight);
  return {std::max(0, width), std::max(0, height)};
}

void WindowGeometry::Place(HWND window, const Rect& bounds, Scale scale) {
  const SIZE outer = SizeOf(OuterOf(window));
  const SIZE inner = SizeOf(ClientOf(window));
  const SIZE client = ClientSize(bounds, scale);
  SetWindowPos(window, nullptr, scale.Pixels(bounds.left), scale.Pixels(bounds.top),
               client.cx + outer.cx - inner.cx, client.cy + outer.cy - inner.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void WindowGeometry::AllowAnySize(MINMAXINFO& limits) {
  limits.ptMinTrackSize = {1, 1};
  limits.ptMaxTrackSize = {0x7FFF, 0x7FFF};
}

void WindowGeometry::Settle(HWND window) {
  const RECT outer = OuterOf(window);
  corner_ = {outer.left, outer.top};
  client_ = SizeOf(ClientOf(window));
}

Rect WindowGeometry::Followed(HWND window, const Rect& bounds, Scale scale) {
  const WindowGeometry before = *this;
  Settle(window);
  return {bounds.left + scale.Twips(corner_.x - before.corner_.x),
          bounds.top + scale.Twips(corner_.y - before.corner_.y),
          bounds.width + scale.Twips(client_.cx - before.client_.cx),
          bounds.height + scale.Twips(client_.cy - before.client_.cy)};
}

}  // namespace lumenote
