#include "backends/win32/windows/menus/MenuBarWindow.h"

#include <algorithm>
#include <windowsx.h>

#include "backends/win32/assist/Speech.h"
#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/input/Keys.h"
#include "backends/win32/toolkit/input/MousePoint.h"
#include "backends/win32/windows/keys/KeyNavigation.h"
#include "forms/values/Captions.h"

namespace lumenote {
namespace {

constexpr double kPadding = 60;  // twips, at each side of a caption

}  // namespace

MenuBarWindow::MenuBarWindow(HWND parent, Form& form)
    : PaintedWindow(parent, WindowKind{OwnClass(L"LumenoteMenuBar"), WS_CHILD | WS_CLIPSIBLINGS}),
      form_(&form) {
  Show();
}

void MenuBarWindow::Show() {
  menus_ = form_->Menus();
  std::erase_if(menus_, [](const Menu* menu) { return !menu->Visible(); });
  if (std::ranges::find(menus_, lit_) == menus_.end()) Light(nullptr);
  Repaint();
}

void MenuBarWindow::Detach() {
  form_ = nullptr;
  chosen = nullptr;
  menus_.clear();
  lit_ = nullptr;
}

std::vector<RECT> MenuBarWindow::Places(HDC dc) const {
  const SelectScope font(dc, Font());
  const int padding = Scale::Of(Handle()).Pixels(kPadding);
  RECT bar;
  GetClientRect(Handle(), &bar);
  std::vector<RECT> places;
  LONG left = 0;
  for (const Menu* menu : menus_) {
    RECT caption = {};
    DrawTextW(dc, Wide(menu->Caption()), -1, &caption, DT_CALCRECT | DT_SINGLELINE);
    places.push_back({left, 0, left + caption.right + 2 * padding, bar.bottom});
    left = places.back().right;
  }
  return places;
}

RECT MenuBarWindow::OnScreen(RECT place) const {
  MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

Menu* MenuBarWindow::MenuAt(POINT at) const {
  const std::vector<RECT> places = Places(DcScope(Handle()).Get());
  for (std::size_t i = 0; i < places.size(); ++i)
    if (const RECT place = OnScreen(places[i]); PtInRect(&place, at)) return menus_[i];
  return nullptr;
}

RECT MenuBarWindow::PlaceOf(const Menu& menu) const {
  const std::vector<RECT> places = Places(DcScope(Handle()).Get());
  for (std::size_t i = 0; i < places.size(); ++i)
    if (menus_[i] == &menu) return OnScreen(places[i]);
  return {};
}

void MenuBarWindow::Light(Menu* menu) {
  if (menu == lit_) return;
  lit_ = menu;
  TellLit();
  Repaint();
}

void MenuBarWindow::TellLit() const {
  SetWindowTextW(Handle(), Wide(lit_ ? WithoutMnemonic(lit_->Caption()) : std::u16string()));
  if (!lit_) return;
  NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, Handle(), OBJID_CLIENT, CHILDID_SELF);
  if (GetFocus() == Handle())
    NotifyWinEvent(EVENT_OBJECT_FOCUS, Handle(), OBJID_CLIENT, CHILDID_SELF);
}

void MenuBarWindow::TakeKeyboard(Menu& lit) {
  GetCursorPos(&pointer_);
  SetFocus(Handle());
  Light(&lit);
}

LRESULT MenuBarWindow::Receive(const Message& message) {
  const auto at = [&] {
    POINT point = {GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)};
    ClientToScreen(Handle(), &point);
    return point;
  };
  switch (message.id) {
    case WM_GETOBJECT:
      if (!AsksForSpeech(message)) return PaintedWindow::Receive(message);
      return Speak(Handle(), {Caption(), lit_ ? ROLE_SYSTEM_MENUITEM : ROLE_SYSTEM_MENUBAR},
                   message);
    case WM_LBUTTONDOWN:
      Press(MenuAt(at()));
      return 0;
    case WM_MOUSEMOVE: {
      if (HasMoved(pointer_, at())) Point(MenuAt(pointer_));
      TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, Handle(), 0};
      TrackMouseEvent(&leave);
      return 0;
    }
    case WM_MOUSELEAVE:
      Point(nullptr);
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      HearFocus(message.id == WM_SETFOCUS);
      return 0;
    case WM_KEYDOWN:
      HearKey(message.w);
      return 0;
    case WM_CHAR:
    case WM_SYSCHAR:
      HearCharacter(static_cast<char16_t>(message.w));
      return 0;
    default:
      return PaintedWindow::Receive(message);
  }
}

void MenuBarWindow::Point(Menu* menu) {
  if (menu || GetFocus() != Handle()) Light(menu);
}

void MenuBarWindow::Press(Menu* menu) {
  if (menu && chosen) chosen(*menu);
}

void MenuBarWindow::HearFocus(bool has) {
  if (!has) Light(nullptr);
  if (form_) form_->UserMenuBarFocus(has);
}

void MenuBarWindow::HearKey(WPARAM key) {
  Menu* const lit = lit_;
  if (key == VK_ESCAPE) SetFocus(GetParent(Handle()));
  if (!form_) return;
  if (const auto stroke = StrokeOf(key); stroke && form_->HasShortcut(*stroke)) {
    form_->UserKey(*stroke);
    return;
  }
  if (!lit) return;
  switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
      return Light(NextMenu(*form_, lit, key == VK_RIGHT));
    case VK_RETURN:
    case VK_UP:
    case VK_DOWN:
      return Press(lit);
    default:
      return;
  }
}

void MenuBarWindow::HearCharacter(char16_t character) {
  Menu* const marked = form_ ? MenuWithMnemonic(*form_, character) : nullptr;
  if (marked && GetFocus() == Handle()) Press(marked);
}

void MenuBarWindow::Paint(HDC dc, const RECT& area) {
  FillRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
  const SelectScope font(dc, Font());
  SetBkMode(dc, TRANSPARENT);
  const std::vector<RECT> places = Places(dc);
  for (std::size_t i = 0; i < places.size(); ++i) PaintMenu(dc, *menus_[i], places[i]);
}

void MenuBarWindow::PaintMenu(HDC dc, Menu& menu, RECT place) const {
  const bool lit = lit_ == &menu && menu.Enabled();
  if (lit) FillRect(dc, &place, GetSysColorBrush(COLOR_HIGHLIGHT));
  SetTextColor(dc, GetSysColor(lit              ? COLOR_HIGHLIGHTTEXT
                               : menu.Enabled() ? COLOR_MENUTEXT
                                                : COLOR_GRAYTEXT));
  DrawTextW(dc, Wide(menu.Caption()), -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

}  // namespace lumenote
