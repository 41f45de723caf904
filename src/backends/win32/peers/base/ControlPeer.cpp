#include "backends/win32/peers/base/ControlPeer.h"

#include <windowsx.h>

#include "backends/win32/assist/Speech.h"
#include "backends/win32/peers/base/FrameClip.h"
#include "backends/win32/toolkit/input/Keys.h"
#include "backends/win32/toolkit/input/MouseButtons.h"
#include "backends/win32/toolkit/input/MousePoint.h"
#include "forms/CaptionedControl.h"
#include "forms/Form.h"
#include "forms/controls/SpokenName.h"
#include "forms/controls/labels/Frame.h"

namespace lumenote {
namespace {

/// Keys whose character makes a one-line box beep.
bool TypesNothing(const KeyStroke& key) {
  return key.name == KeyName::Return || key.name == KeyName::Escape || key.name == KeyName::Tab;
}

}  // namespace

// As everywhere, a later control stands above the earlier ones.
ControlPeer::ControlPeer(Control& control, std::shared_ptr<Window> window, PeerHost& host)
    : control_(control), window_(std::move(window)), host_(host), annotation_(Handle()) {
  window_->Listener(this);
  SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

ControlPeer::~ControlPeer() {
  window_->Listener(nullptr);
  if (Handle()) ShowWindow(Handle(), SW_HIDE);
}

void ControlPeer::Update(Property property) {
  if (property == Property::Geometry && !IsDocked())
    Place(host_.Resolution().Pixels(control_.Bounds()));
  if (property == Property::Visible) ShowVisible();
  if (property == Property::Order)
    SetWindowPos(Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  if (property == Property::Font) ShowFont();
  if (property == Property::Enabled) ShowEnabled();
  if (property == Property::SpokenName) ShowName();
}

void ControlPeer::Place(const RECT& bounds) {
  const SIZE size = SizeOf(bounds);
  SetWindowPos(Handle(), nullptr, bounds.left, bounds.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  if (dynamic_cast<const Frame*>(&control_.Parent())) ClipInFrame(Handle());
}

void ControlPeer::Rescale() {
  Update(Property::Geometry);
  Update(Property::Font);
}

void ControlPeer::ShowVisible() {
  if (!control_.Visible()) LeaveFocus();
  ShowWindow(Handle(), control_.Visible() ? SW_SHOWNA : SW_HIDE);
}

void ControlPeer::ShowEnabled() {
  if (!control_.Enabled()) LeaveFocus();
  EnableWindow(Handle(), control_.Enabled());
}

// A control that cannot be used any more leaves the keyboard to its window.
void ControlPeer::LeaveFocus() {
  const HWND focus = GetFocus();
  if (focus && (focus == Handle() || IsChild(Handle(), focus)))
    SetFocus(GetAncestor(Handle(), GA_ROOT));
}

void ControlPeer::ShowFont() {
  const HFONT font =
      host_.Fonts().Get(control_.FontName(), control_.FontSize(), host_.Resolution());
  Tell(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

// The caption of a window is its name.
void ControlPeer::ShowName() {
  if (Role() != 0 && !dynamic_cast<const CaptionedControl*>(&control_))
    annotation_.Name(SpokenNameOf(control_));
  if (IsWindowVisible(Handle()))
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, Handle(), OBJID_CLIENT, CHILDID_SELF);
}

void ControlPeer::Compare(DifferenceList& differences) const {
  const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
  differences.Check(control_, "Visible", ((style & WS_VISIBLE) != 0) == control_.Visible());
  differences.Check(control_, "Enabled", ((style & WS_DISABLED) == 0) == control_.Enabled());
  if (IsDocked()) return;
  RECT shown;
  GetWindowRect(Handle(), &shown);
  MapWindowPoints(nullptr, GetParent(Handle()), reinterpret_cast<POINT*>(&shown), 2);
  const RECT wanted = host_.Resolution().Pixels(control_.Bounds());
  differences.Check(control_, "Bounds", EqualRect(&shown, &wanted));
}

std::optional<LRESULT> ControlPeer::Hear(const Message& message) {
  const auto window = window_;
  if (message.id == WM_SETFOCUS) host_.Focused(control_);
  if (IsPress(message.id)) host_.Pressed();
  if (!window->HasListener()) return 0;
  if (AsksForSpeech(message) && Role() != 0)
    return Speak(Handle(), {SpokenNameOf(control_), Role()}, message);
  if (!PassesInput()) return std::nullopt;
  if (message.id == WM_KEYDOWN || message.id == WM_SYSKEYDOWN || message.id == WM_SYSCHAR)
    return HearKey(message);
  if (message.id == WM_MOUSEWHEEL && PassWheel(message)) return 0;
  if (!window->HasListener()) return 0;
  if (message.id < WM_MOUSEFIRST || message.id > WM_MBUTTONDBLCLK) return std::nullopt;
  HearMouse(message);
  return window->HasListener() ? std::optional<LRESULT>() : 0;
}

// A fine wheel turns by parts of a notch.
bool ControlPeer::PassWheel(const Message& message) {
  turned_ -= GET_WHEEL_DELTA_WPARAM(message.w);
  const int notches = turned_ / WHEEL_DELTA;
  turned_ %= WHEEL_DELTA;
  return notches != 0 && control_.UserMouseWheel(notches);
}

void ControlPeer::HearHandled(const Message& message) {
  if (TellsFreeMouse(message)) host_.Released();
}

// The peer may be gone when a key was used.
std::optional<LRESULT> ControlPeer::HearKey(const Message& message) {
  if (message.id == WM_SYSCHAR) {
    const bool used = host_.UseMnemonic(static_cast<char16_t>(message.w));
    return used ? std::optional<LRESULT>(0) : std::nullopt;
  }
  const std::optional<KeyStroke> key = StrokeOf(message.w);
  const auto window = window_;
  host_.Used();
  if (!window->HasListener()) return 0;
  if (!key || Wants(*key)) return std::nullopt;
  const HWND handle = GetFocus();
  const bool used = host_.UnusedKey(control_, *key);
  if (used || TypesNothing(*key)) SwallowCharacter(handle);
  return used ? std::optional<LRESULT>(0) : std::nullopt;
}

// Any event may close the window and destroy the peer.
void ControlPeer::HearMouse(const Message& message) {
  const auto window = window_;
  const POINT at = {GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)};
  const MouseEvent event{ReleasedBy(message.id), PointOf(Handle(), message)};
  if (message.id == WM_MOUSEMOVE) return control_.UserMouseMove(event);
  if (message.id == WM_LBUTTONDBLCLK) return control_.UserDoubleClick();
  if (event.button == MouseButton::None) return host_.Used();
  RECT area;
  GetClientRect(Handle(), &area);
  const bool clicks = ClicksByMouse() && event.button == MouseButton::Left && PtInRect(&area, at);
  control_.UserMouseUp(event);
  if (clicks && window->HasListener()) control_.UserClick();
}

}  // namespace lumenote
