#include "backends/win32/peers/base/FrameClip.h"

#include <algorithm>

namespace lumenote {

void ClipInFrame(HWND window) {
  constexpr LONG kBorder = 2;
  RECT frame;
  RECT place;
  GetClientRect(GetParent(window), &frame);
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
  const LONG room = frame.right - kBorder - place.left;
  const bool covers = place.right - place.left > room;
  // The region becomes the system's.
  const HRGN inside =
      covers ? CreateRectRgn(0, 0, std::max(0L, room), place.bottom - place.top) : nullptr;
  SetWindowRgn(window, inside, TRUE);
}

}  // namespace lumenote
