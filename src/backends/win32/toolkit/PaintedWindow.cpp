#include "backends/win32/toolkit/PaintedWindow.h"

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/MemoryDc.h"

namespace lumenote {
std::u16string PaintedWindow::Caption() const { return TextOf(Handle()); }

void PaintedWindow::Repaint() { InvalidateRect(Handle(), nullptr, FALSE); }

LRESULT PaintedWindow::Receive(const Message& message) {
  switch (message.id) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      PaintBuffered();
      return 0;
    case WM_PRINTCLIENT: {
      RECT area;
      GetClientRect(Handle(), &area);
      Paint(reinterpret_cast<HDC>(message.w), area);
      return 0;
    }
    case WM_SETFONT:
      font_ = reinterpret_cast<HFONT>(message.w);
      Repaint();
      return 0;
    case WM_GETFONT:
      return reinterpret_cast<LRESULT>(font_);
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      return SendMessageW(GetParent(Handle()), message.id, message.w, message.l);
    case WM_SETTEXT:
    case WM_ENABLE:
    case WM_SIZE:
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      Repaint();
      return Default(message);
    default:
      return Default(message);
  }
}

void PaintedWindow::PaintBuffered() {
  const PaintScope paint(Handle());
  RECT area;
  GetClientRect(Handle(), &area);
  const MemoryDc buffer(paint.Get());
  const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(paint.Get(), area.right, area.bottom));
  const SelectScope drawn(buffer.Get(), bitmap.Get());
  Paint(buffer.Get(), area);
  BitBlt(paint.Get(), 0, 0, area.right, area.bottom, buffer.Get(), 0, 0, SRCCOPY);
}

void PaintedWindow::PaintGround(HDC dc) {
  const HWND parent = GetParent(Handle());
  POINT corner = {};
  MapWindowPoints(Handle(), parent, &corner, 1);
  POINT before;
  OffsetViewportOrgEx(dc, -corner.x, -corner.y, &before);
  SendMessageW(parent, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
  SetViewportOrgEx(dc, before.x, before.y, nullptr);
  SendMessageW(parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
               reinterpret_cast<LPARAM>(Handle()));
}

void PaintedWindow::PaintCaption(HDC dc, RECT box, UINT format) const {
  SetBkMode(dc, TRANSPARENT);
  DrawTextW(dc, Wide(Caption()), -1, &box, format);
}

}  // namespace lumenote
