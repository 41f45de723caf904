// What the user and the system do to a form's window.
#include "backends/win32/assist/Speech.h"
#include "backends/win32/toolkit/input/Keys.h"
#include "backends/win32/windows/Win32FormPeer.h"
#include "base/ScopedFlag.h"

namespace lumenote {
namespace {

BOOL CALLBACK TellChild(HWND child, LPARAM told) {
  const auto& [id, w, l] = *reinterpret_cast<const Message*>(told);
  SendMessageW(child, id, w, l);
  return TRUE;
}

}  // namespace

std::optional<LRESULT> Win32FormPeer::Hear(const Message& message) {
  switch (message.id) {
    case WM_GETOBJECT:
      if (!AsksForSpeech(message) || !IsDialog()) return std::nullopt;
      return Speak(Handle(), {form_.Caption(), ROLE_SYSTEM_DIALOG}, message);
    case WM_ACTIVATE:
      if (LOWORD(message.w) == WA_INACTIVE || HIWORD(message.w) != 0) return std::nullopt;
      form_.UserActivate();
      return std::nullopt;  // the system gives the window the keyboard
    case WM_SETFOCUS:
      FocusInside();
      return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR:
      return HearKey(message);
    case WM_CLOSE:
      form_.UserClose();
      return 0;
    case WM_DESTROY:
      form_.Lose();
      return 0;
    case WM_SIZE:
    case WM_MOVE:
      if (!placing_) FollowUser();
      return 0;
    case WM_GETMINMAXINFO:
      WindowGeometry::AllowAnySize(*reinterpret_cast<MINMAXINFO*>(message.l));
      return 0;
    case WM_DPICHANGED:
      Rescaled(LOWORD(message.w), *reinterpret_cast<const RECT*>(message.l));
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      TellAll(message);
      return std::nullopt;
    case WM_INITMENUPOPUP:
      menus_.Opening(reinterpret_cast<HMENU>(message.w));
      return 0;
    case WM_COMMAND:
      menus_.Chosen(LOWORD(message.w));
      return 0;
    case WM_SYSCOMMAND:
      if ((message.w & 0xFFF0) != SC_KEYMENU || message.l != 0) return std::nullopt;
      form_.UserMenuKey();  // without a bar, the system would wait for its own menu
      return 0;
    case WM_QUERYENDSESSION:
      form_.Keep();
      return TRUE;
    case WM_ENDSESSION:
      if (message.w != 0) form_.Abandon();  // a question would hold the system
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> Win32FormPeer::HearKey(const Message& message) {
  if (message.id == WM_SYSCHAR)
    return UseMnemonic(static_cast<char16_t>(message.w)) ? std::optional<LRESULT>(0) : std::nullopt;
  const std::optional<KeyStroke> key = StrokeOf(message.w);
  const HWND handle = Handle();
  if (!key || !form_.UserKey(*key)) return std::nullopt;
  SwallowCharacter(handle);
  return 0;
}

void Win32FormPeer::FollowUser() {
  if (IsIconic(Handle())) return;
  LayOutParts();
  const Rect before = form_.Bounds();
  const Rect now = geometry_.Followed(Handle(), before, scale_);
  if (now.left != before.left || now.top != before.top) form_.UserMove(now.left, now.top);
  if (now.width != before.width || now.height != before.height)
    form_.UserResize(now.width, now.height);
}

void Win32FormPeer::DragTo(float width, float height) {
  {
    const ScopedFlag placing(placing_);
    WindowGeometry::Place(Handle(), {form_.Left(), form_.Top(), width, height}, scale_);
    geometry_.Settle(Handle());
    LayOutParts();
  }
  form_.UserResize(width, height);
}

void Win32FormPeer::Rescaled(int dpi, const RECT& suggested) {
  scale_ = Scale(dpi);
  const ScopedFlag placing(placing_);
  WindowGeometry::Place(Handle(), form_.Bounds(), scale_);
  SetWindowPos(Handle(), nullptr, suggested.left, suggested.top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  geometry_.Settle(Handle());
  for (const auto& [control, peer] : controls_) peer->Rescale();
  ShowMenuBar();
}

// The system tells a window on the desktop only.
void Win32FormPeer::TellAll(Message message) {
  EnumChildWindows(Handle(), &TellChild, reinterpret_cast<LPARAM>(&message));
}

}  // namespace lumenote
