#include "backends/win32/peers/labels/LabelPeer.h"

#include "backends/win32/toolkit/Colours.h"
#include "backends/win32/toolkit/Gdi.h"

namespace lumenote {

LabelWindow::LabelWindow(HWND parent, LabelStyle style)
    : PaintedWindow(parent,
                    WindowKind{OwnClass(L"LumenoteLabel", CS_DBLCLKS), WS_CHILD | WS_CLIPSIBLINGS}),
      style_(style) {}

// A press that began here ends here.
LRESULT LabelWindow::Receive(const Message& message) {
  if (message.id == WM_LBUTTONDOWN) SetCapture(Handle());
  if (message.id == WM_LBUTTONUP && GetCapture() == Handle()) ReleaseCapture();
  return PaintedWindow::Receive(message);
}

void LabelWindow::Paint(HDC dc, const RECT& area) {
  const SelectScope font(dc, Font());
  if (style_ == LabelStyle::Cell) return PaintCell(dc, area);
  PaintGround(dc);
  if (!IsWindowEnabled(Handle())) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
  PaintCaption(dc, area, DT_LEFT | DT_WORDBREAK | DT_EXPANDTABS);
}

void LabelWindow::PaintCell(HDC dc, const RECT& area) const {
  FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
  const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
  const GdiObject<HBRUSH> line(CreateSolidBrush(LineOn(GetSysColor(COLOR_WINDOW), ink)));
  FrameRect(dc, &area, line.Get());
  SetTextColor(dc, ink);
  PaintCaption(dc, area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

LabelPeer::LabelPeer(Label& label, HWND parent, PeerHost& host)
    : CaptionPeer(label, std::make_shared<LabelWindow>(parent, label.Style()), host) {}

}  // namespace lumenote
