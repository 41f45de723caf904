#include "backends/win32/windows/ContentWindow.h"

#include <windowsx.h>

namespace lumenote {
namespace {

/// Black or white, whichever contrasts more.
COLORREF InkOn(COLORREF ground) {
  const int grey = 11 * GetRValue(ground) + 16 * GetGValue(ground) + 5 * GetBValue(ground);
  return grey >= 128 * 32 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

}  // namespace

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

COLORREF ContentWindow::Colour() const {
  return ground_ < 0 ? GetSysColor(COLOR_BTNFACE) : static_cast<COLORREF>(ground_);
}

LRESULT ContentWindow::Receive(const Message& message) {
  switch (message.id) {
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return ColourOfControl(reinterpret_cast<HDC>(message.w));
    case WM_SYSCOLORCHANGE:
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
  SetTextColor(dc, ground_ < 0 ? GetSysColor(COLOR_BTNTEXT) : InkOn(Colour()));
  SetBkColor(dc, Colour());
  return reinterpret_cast<LRESULT>(brush_.Get());
}

void ContentWindow::Paint(HDC dc, const RECT& area) { FillRect(dc, &area, brush_.Get()); }

}  // namespace lumenote
