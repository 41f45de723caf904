#include "backends/win32/Win32UserActs.h"

#include <stdexcept>

#include "backends/win32/Win32Backend.h"
#include "backends/win32/toolkit/input/Keys.h"
#include "backends/win32/toolkit/input/MousePoint.h"
#include "backends/win32/view/SurfaceWindow.h"
#include "base/Strings.h"
#include "forms/Menu.h"
#include "forms/controls/buttons/UpDown.h"
#include "forms/controls/edits/ComboBox.h"
#include "forms/controls/edits/RichTextBox.h"
#include "surface/DocumentSurface.h"

namespace lumenote {
namespace {

/// The messages of one mouse button.
struct ButtonMessages {
  UINT down;
  UINT up;
  UINT twice;
  WPARAM held;
};

ButtonMessages MessagesOf(MouseButton button) {
  switch (button) {
    case MouseButton::Right:
      return {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_RBUTTONDBLCLK, MK_RBUTTON};
    case MouseButton::Middle:
      return {WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK, MK_MBUTTON};
    default:
      return {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, MK_LBUTTON};
  }
}

/// The mouse at a point of a window; any message may destroy the window.
class MousePointer {
 public:
  MousePointer(HWND window, LPARAM at, MouseButton button)
      : window_(window),
        at_(at),
        messages_(MessagesOf(button)),
        held_(button == MouseButton::None ? 0 : messages_.held) {}

  void Press() const { SendMessageW(window_, messages_.down, held_, at_); }
  void PressAgain() const { SendMessageW(window_, messages_.twice, held_, at_); }
  void Release() const { SendMessageW(window_, messages_.up, 0, at_); }
  void Move() const { SendMessageW(window_, WM_MOUSEMOVE, held_, at_); }

 private:
  HWND window_;
  LPARAM at_;
  ButtonMessages messages_;
  WPARAM held_;
};

LPARAM MiddleOf(HWND window) {
  RECT area;
  GetClientRect(window, &area);
  return MAKELPARAM(area.right / 2, area.bottom / 2);
}

/// Holds modifier keys for a block.
class HeldKeys {
 public:
  explicit HeldKeys(const KeyStroke& key) {
    GetKeyboardState(before_);
    BYTE state[256];
    GetKeyboardState(state);
    const auto hold = [&](int virtualKey, bool held) {
      state[virtualKey] = static_cast<BYTE>(held ? 0x80 : 0);
    };
    hold(VK_SHIFT, key.shift);
    hold(VK_CONTROL, key.control);
    hold(VK_MENU, key.alt);
    SetKeyboardState(state);
  }
  ~HeldKeys() { SetKeyboardState(before_); }
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;

 private:
  BYTE before_[256];
};

/// Hands over what a message loop would have queued for the key, unless the window has taken it.
void DispatchCharacters(HWND window, UINT kind) {
  MSG queued;
  while (IsWindow(window) && PeekMessageW(&queued, window, kind, kind, PM_REMOVE))
    DispatchMessageW(&queued);
}

void PressKey(HWND window, const KeyStroke& key) {
  constexpr LPARAM kAltHeld = 1 << 29;
  const HeldKeys held(key);
  const WPARAM virtualKey = VirtualKeyOf(key);
  const LPARAM flags = 1 | (key.alt ? kAltHeld : 0);
  const UINT character = key.alt ? WM_SYSCHAR : WM_CHAR;
  const bool systems = key.alt || virtualKey == VK_F10;
  if (const wchar_t typed = CharacterOf(key))
    PostMessageW(window, character, static_cast<WPARAM>(typed), flags);
  SendMessageW(window, systems ? WM_SYSKEYDOWN : WM_KEYDOWN, virtualKey, flags);
  DispatchCharacters(window, character);
  if (IsWindow(window)) SendMessageW(window, systems ? WM_SYSKEYUP : WM_KEYUP, virtualKey, flags);
}

}  // namespace

Win32FormPeer& Win32UserActs::PeerOf(const Form& form) const {
  if (Win32FormPeer* peer = backend_.PeerOf(form)) return *peer;
  throw std::logic_error(form.Name() + " is not on screen");
}

ControlPeer& Win32UserActs::PeerOf(const Control& control) const {
  if (ControlPeer* peer = PeerOf(control.Owner()).PeerOf(control)) return *peer;
  throw std::logic_error(control.Name() + " is not on screen");
}

HWND Win32UserActs::WindowOf(const Control& control) const {
  return PeerOf(control).Native().Handle();
}

SurfaceWindow& Win32UserActs::SurfaceOf(const RichTextBox& box) const {
  return dynamic_cast<SurfaceWindow&>(PeerOf(box).Native());
}

void Win32UserActs::Click(Control& control) {
  const HWND window = WindowOf(control);
  const MousePointer hand(window, MiddleOf(window), MouseButton::Left);
  hand.Press();
  hand.Release();
}

void Win32UserActs::DoubleClick(Control& control) {
  const HWND window = WindowOf(control);
  const MousePointer hand(window, MiddleOf(window), MouseButton::Left);
  hand.Press();
  hand.Release();
  hand.PressAgain();
  hand.Release();
}

void Win32UserActs::Choose(Menu& entry) {
  const Win32FormPeer& peer = PeerOf(entry.Owner());
  SendMessageW(peer.Handle(), WM_COMMAND, peer.Menus().Tree().CommandOf(entry), 0);
}

void Win32UserActs::Open(Menu& menu) {
  const Win32FormPeer& peer = PeerOf(menu.Owner());
  if (const HMENU list = peer.Menus().Tree().ListOf(menu))
    SendMessageW(peer.Handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(list), 0);
  else
    menu.UserOpen();
}

void Win32UserActs::Type(Control& control, std::u16string_view text) {
  control.SetFocus();
  const HWND window = PeerOf(control).FocusTarget();
  const std::u16string keys = ReplaceEvery(WithCrLf(text), u"\r\n", u"\r");
  for (const char16_t key : keys) {
    if (!IsWindow(window)) return;
    if (key == u'\r' || key == u'\t')
      PressKey(window, {.name = key == u'\r' ? KeyName::Return : KeyName::Tab});
    else
      SendMessageW(window, WM_CHAR, key, 1);
  }
}

void Win32UserActs::Key(Control& control, const KeyStroke& key) {
  if (control.Owner().IsForMenuBar(key))
    return PressKey(PeerOf(control.Owner()).Menus().Bar().Handle(), key);
  control.SetFocus();
  PressKey(PeerOf(control).FocusTarget(), key);
}

void Win32UserActs::Select(RichTextBox& box, Position start, Position length) {
  box.SetFocus();
  SurfaceWindow& window = SurfaceOf(box);
  const auto& surface = dynamic_cast<const DocumentSurface&>(box.Surface());
  const Position end = start + std::min(length, surface.Content().Length());
  window.Text().Select(start, end);
}

void Win32UserActs::Mouse(Control& control, MouseAct act, const MouseEvent& event) {
  const HWND window = WindowOf(control);
  const FineMouse exact(window, event.at);
  const MousePointer hand(window, exact.Pixel(), event.button);
  if (act == MouseAct::Down) hand.Press();
  if (act == MouseAct::Move) hand.Move();
  if (act == MouseAct::Up) hand.Release();
}

void Win32UserActs::Drag(RichTextBox& box, Position start, Position length, Position to) {
  Select(box, start, length);
  SurfaceWindow& window = SurfaceOf(box);
  window.Text().Pane().Reveal(to);
  window.Settle();
  const std::optional<PixelRect> caret = window.Text().Pane().CaretAt(to);
  if (caret) window.Drop({caret->left, (caret->top + caret->bottom) / 2});
}

void Win32UserActs::Spin(UpDown& spinner, bool up) {
  spinner.SetFocus();
  const HWND window = WindowOf(spinner);
  RECT area;
  GetClientRect(window, &area);
  const LONG y = up ? area.bottom / 4 : area.bottom * 3 / 4;
  const MousePointer hand(window, MAKELPARAM(area.right / 2, y), MouseButton::Left);
  hand.Press();
  hand.Release();
}

void Win32UserActs::Pick(ComboBox& combo, int index) {
  combo.SetFocus();
  const HWND window = WindowOf(combo);
  SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
  for (const WORD notice : {CBN_SELENDOK, CBN_CLOSEUP})
    if (IsWindow(window))
      SendMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(0, notice),
                   reinterpret_cast<LPARAM>(window));
}

void Win32UserActs::Drop(ComboBox& combo) {
  combo.SetFocus();
  const HWND window = WindowOf(combo);
  SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
  if (IsWindow(window)) SendMessageW(window, CB_SHOWDROPDOWN, FALSE, 0);
}

void Win32UserActs::Resize(Form& form, float width, float height) {
  PeerOf(form).DragTo(width, height);
}

// A click in the window makes it active.
void Win32UserActs::Activate(Form& form) {
  const HWND window = PeerOf(form).Handle();
  SetForegroundWindow(window);
  SetActiveWindow(window);
  form.UserActivate();
}

void Win32UserActs::Close(Form& form) { SendMessageW(PeerOf(form).Handle(), WM_CLOSE, 0, 0); }

}  // namespace lumenote
