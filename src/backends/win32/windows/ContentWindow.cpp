#include "backends/win32/windows/ContentWindow.h"

#include <windowsx.h>

#include "backends/win32/toolkit/drawing/Colours.h"
#include "backends/win32/toolkit/input/MouseButtons.h"

namespace lumenote {

ContentWindow::ContentWindow(HWND parent)
    : PaintedWindow(parent, WindowKind{OwnClass(L"LumenoteContent"),
                                       WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                                       WS_EX_CONTROLPARENT}),
      brush_(CreateSolidBrush(Colour())) {}

void ContentWindow::Ground(std::int32_t colour) {
  ground_ = colour;
  brush_ = GdiObject<HBRUSH>(CreateSolidBrush(Colour()));
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

bool ContentWindow::IsSystems() const { return ground_ < 0 || HighContrast(); }

COLORREF ContentWindow::Colour() const {
  return IsSystems() ? GetSysColor(COLOR_BTNFACE) : static_cast<COLORREF>(ground_);
}

LRESULT ContentWindow::Receive(const Message& message) {
  if (IsPress(message.id) && pressed) pressed();
  if (TellsFreeMouse(message) && released) released();
  switch (message.id) {
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return ColourOfControl(reinterpret_cast<HDC>(message.w));
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      Ground(ground_);
      return 0;
    case WM_MOUSEMOVE:
      if (mouseMoved) mouseMoved({GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)});
      return 0;
    default:
      return PaintedWindow::Receive(message);
  }
}

LRESULT ContentWindow::ColourOfControl(HDC dc) const {
  SetTextColor(dc, IsSystems() ? GetSysColor(COLOR_BTNTEXT) : InkOn(Colour()));
  SetBkColor(dc, Colour());
  return reinterpret_cast<LRESULT>(brush_.Get());
}

void ContentWindow::Paint(HDC dc, const RECT& area) { FillRect(dc, &area, brush_.Get()); }

}  // namespace lumenote
