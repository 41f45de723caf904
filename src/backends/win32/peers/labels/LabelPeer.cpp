#include "backends/win32/peers/labels/LabelPeer.h"

#include "backends/win32/toolkit/Colours.h"
#include "backends/win32/toolkit/Gdi.h"
#include "backends/win32/toolkit/NativeText.h"

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
  SetBkMode(dc, TRANSPARENT);
  RECT box = area;
  DrawTextW(dc, Wide(Caption()), -1, &box, DT_LEFT | DT_WORDBREAK | DT_EXPANDTABS);
}

void LabelWindow::PaintCell(HDC dc, RECT area) const {
  FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
  const COLORREF ink = GetSysColor(COLOR_WINDOWTEXT);
  const GdiObject<HBRUSH> line(CreateSolidBrush(LineOn(GetSysColor(COLOR_WINDOW), ink)));
  FrameRect(dc, &area, line.Get());
  SetTextColor(dc, ink);
  SetBkMode(dc, TRANSPARENT);
  DrawTextW(dc, Wide(Caption()), -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

LabelPeer::LabelPeer(Label& label, HWND parent, PeerHost& host)
    : ControlPeer(label, std::make_shared<LabelWindow>(parent, label.Style()), host),
      label_(label) {}

void LabelPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Caption) SetWindowTextW(Handle(), Wide(label_.Caption()));
}

void LabelPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(label_, "Caption", TextOf(Handle()) == label_.Caption());
}

}  // namespace lumenote
