#include "backends/win32/view/input/MouseInput.h"

#include <utility>

#include "backends/win32/toolkit/input/MouseButtons.h"
#include "backends/win32/toolkit/input/MousePoint.h"
#include "view/acts/TextTips.h"

// After the system's own header.
#include <windowsx.h>

namespace lumenote {

namespace {

PixelPoint PointOf(LPARAM at) { return {1.0 * GET_X_LPARAM(at), 1.0 * GET_Y_LPARAM(at)}; }

}  // namespace

bool MouseInput::Handle(const Message& message) {
  if (message.id == WM_RBUTTONDOWN || message.id == WM_MBUTTONDOWN) view_.Complete();
  ShowTip(message);
  if (message.id <= WM_LBUTTONDOWN) mouse_.Control(message.w & MK_CONTROL);
  switch (message.id) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      PressLeft(message);
      return true;
    case WM_MOUSEMOVE:
      mouse_.Move(PointOf(message.l), message.w & MK_LBUTTON);
      return true;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      Up(ReleasedBy(message.id), message.l);
      return true;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      Turn(message);
      return true;
  }
  return false;
}

void MouseInput::ShowTip(const Message& message) {
  if (message.id == WM_MOUSEMOVE) {
    std::u16string tip = TipAt(view_.Pane(), PointOf(message.l));
    if (std::exchange(shownTip_, tip) != tip) tip_.Text(tip);
  }
  tip_.Relay(message);
}

void MouseInput::PressLeft(const Message& message) {
  if (GetFocus() != window_) SetFocus(window_);
  if (!view_.IsAttached()) return;
  SetCapture(window_);
  const ViewMouse::Press press{
      .at = PointOf(message.l), .time = GetMessageTime(), .extend = (message.w & MK_SHIFT) != 0};
  if (message.id == WM_LBUTTONDBLCLK)
    mouse_.DoubleClick(press);
  else
    mouse_.Down(press);
}

void MouseInput::Up(MouseButton button, LPARAM at) {
  if (button == MouseButton::Left) {
    mouse_.Up(PointOf(at));
    ReleaseCapture();
  } else {
    mouse_.Cancel();
  }
  Release(button, at);
}

void MouseInput::Release(MouseButton button, LPARAM at) {
  if (view_.IsAttached() && callbacks_.mouseUp)
    callbacks_.mouseUp({button, PointOf(window_, {.l = at})});
}

void MouseInput::Turn(const Message& message) {
  const double notches = 1.0 * GET_WHEEL_DELTA_WPARAM(message.w) / WHEEL_DELTA;
  if (message.id == WM_MOUSEHWHEEL)
    bars_.TurnAcross(notches);
  else if (GET_KEYSTATE_WPARAM(message.w) & MK_CONTROL)
    view_.ZoomBy(notches);
  else
    bars_.Turn(notches);
}

}  // namespace lumenote
