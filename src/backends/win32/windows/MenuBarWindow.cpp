#include "backends/win32/windows/MenuBarWindow.h"

#include <algorithm>
#include <windowsx.h>

#include "backends/win32/toolkit/Gdi.h"
#include "backends/win32/toolkit/NativeText.h"

namespace lumenote {
namespace {

constexpr double kPadding = 60;  // twips, at each side of a caption

}  // namespace

MenuBarWindow::MenuBarWindow(HWND parent)
    : PaintedWindow(parent, WindowKind{OwnClass(L"LumenoteMenuBar"), WS_CHILD | WS_CLIPSIBLINGS}) {}

void MenuBarWindow::Show(std::vector<Menu*> menus) {
  std::erase_if(menus, [](const Menu* menu) { return !menu->Visible(); });
  menus_ = std::move(menus);
  lit_.reset();
  Repaint();
}

void MenuBarWindow::Open(Menu& menu) {
  const auto found = std::ranges::find(menus_, &menu);
  if (found != menus_.end()) OpenAt(static_cast<std::size_t>(found - menus_.begin()));
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

std::optional<std::size_t> MenuBarWindow::MenuAt(POINT at) const {
  const std::vector<RECT> places = Places(DcScope(Handle()).Get());
  for (std::size_t i = 0; i < places.size(); ++i)
    if (PtInRect(&places[i], at)) return i;
  return std::nullopt;
}

void MenuBarWindow::Light(std::optional<std::size_t> menu) {
  if (menu == lit_) return;
  lit_ = menu;
  Repaint();
}

LRESULT MenuBarWindow::Receive(const Message& message) {
  const POINT at = {GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)};
  switch (message.id) {
    case WM_LBUTTONDOWN:
      if (const auto place = MenuAt(at)) OpenAt(*place);
      return 0;
    case WM_MOUSEMOVE: {
      Light(MenuAt(at));
      TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, Handle(), 0};
      TrackMouseEvent(&leave);
      return 0;
    }
    case WM_MOUSELEAVE:
      Light(std::nullopt);
      return 0;
    default:
      return PaintedWindow::Receive(message);
  }
}

void MenuBarWindow::OpenAt(std::size_t place) {
  Menu& menu = *menus_[place];
  if (!menu.Enabled() || !opens) return;
  RECT below = Places(DcScope(Handle()).Get())[place];
  MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&below), 2);
  Light(place);
  opens(menu, below);
  if (Handle()) Light(std::nullopt);
}

void MenuBarWindow::Paint(HDC dc, const RECT& area) {
  FillRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
  const SelectScope font(dc, Font());
  SetBkMode(dc, TRANSPARENT);
  std::vector<RECT> places = Places(dc);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const bool lit = lit_ == i && menus_[i]->Enabled();
    if (lit) FillRect(dc, &places[i], GetSysColorBrush(COLOR_HIGHLIGHT));
    SetTextColor(dc, GetSysColor(lit                    ? COLOR_HIGHLIGHTTEXT
                                 : menus_[i]->Enabled() ? COLOR_MENUTEXT
                                                        : COLOR_GRAYTEXT));
    DrawTextW(dc, Wide(menus_[i]->Caption()), -1, &places[i],
              DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  }
}

}  // namespace lumenote
