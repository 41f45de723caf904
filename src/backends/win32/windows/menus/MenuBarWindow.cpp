#include "backends/win32/windows/menus/MenuBarWindow.h"

#include <windowsx.h>

#include "backends/win32/toolkit/Gdi.h"
#include "backends/win32/toolkit/NativeText.h"
#include "backends/win32/windows/keys/KeyNavigation.h"

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
  lit_ = nullptr;
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
  Repaint();
}

void MenuBarWindow::TakeKeyboard(Menu& lit) {
  SetFocus(Handle());
  Light(&lit);
}

LRESULT MenuBarWindow::Receive(const Message& message) {
  const POINT at = {GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)};
  const auto under = [&] {
    const RECT point = OnScreen({at.x, at.y, at.x, at.y});
    return MenuAt({point.left, point.top});
  };
  switch (message.id) {
    case WM_LBUTTONDOWN:
      Press(under());
      return 0;
    case WM_MOUSEMOVE: {
      Point(under());
      TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, Handle(), 0};
      TrackMouseEvent(&leave);
      return 0;
    }
    case WM_MOUSELEAVE:
      Point(nullptr);
      return 0;
    case WM_KILLFOCUS:
      Light(nullptr);
      return 0;
    case WM_KEYDOWN:
      HearKey(message.w);
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

// The controls have the keyboard again before a menu opens.
void MenuBarWindow::HearKey(WPARAM key) {
  Menu* const lit = lit_;
  if (!form_ || !lit) return;
  switch (key) {
    case VK_LEFT:
    case VK_RIGHT:
      return Light(NextMenu(*form_, lit, key == VK_RIGHT));
    case VK_RETURN:
    case VK_UP:
    case VK_DOWN:
      SetFocus(GetParent(Handle()));
      return Press(lit);
    case VK_ESCAPE:
      SetFocus(GetParent(Handle()));
      return;
    default:
      return;
  }
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
