// The mouse's buttons in the messages of the system.
#pragma once
#include "backends/win32/toolkit/Window.h"
#include "forms/Control.h"

namespace lumenote {

/// The button that a message tells to be released; none for another message.
constexpr MouseButton ReleasedBy(UINT message) {
  switch (message) {
    case WM_LBUTTONUP:
      return MouseButton::Left;
    case WM_RBUTTONUP:
      return MouseButton::Right;
    case WM_MBUTTONUP:
      return MouseButton::Middle;
    default:
      return MouseButton::None;
  }
}

constexpr bool IsPress(UINT message) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      return true;
    default:
      return false;
  }
}

/// Whether the message tells that no button is held. A release outside the window, or at the end of
/// a drag, is told by the next move only.
constexpr bool TellsFreeMouse(const Message& message) {
  constexpr WPARAM kHeld = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;
  const bool tells = message.id == WM_MOUSEMOVE || ReleasedBy(message.id) != MouseButton::None;
  return tells && (message.w & kHeld) == 0;
}

}  // namespace lumenote
