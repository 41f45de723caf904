#include "backends/win32/peers/labels/LabelPeer.h"

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Colours.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/drawing/Units.h"
#include "forms/controls/labels/Frame.h"

namespace lumenote {
namespace {

WindowKind KindOf(LabelStyle style) {
  const wchar_t* const name = style == LabelStyle::Strip
                                  ? OwnClass(L"LumenoteStrip", CS_DBLCLKS, IDC_HAND)
                                  : OwnClass(L"LumenoteLabel", CS_DBLCLKS);
  return {name, WS_CHILD | WS_CLIPSIBLINGS};
}

/// Half the ground and half what is selected.
COLORREF TintOn(COLORREF ground) {
  const COLORREF tint = GetSysColor(COLOR_HIGHLIGHT);
  return HighContrast() ? tint : Mixed(ground, tint, 0.5);
}

}  // namespace

LabelWindow::LabelWindow(HWND parent, LabelStyle style)
    : PaintedWindow(parent, KindOf(style)), style_(style) {}

void LabelWindow::FollowPointer(const Message& message) {
  if (message.id >= WM_MOUSEFIRST && message.id <= WM_MOUSELAST) tip_.Relay(message);
  const bool over = message.id == WM_MOUSEMOVE;
  if (style_ != LabelStyle::Strip || lit_ == over || (!over && message.id != WM_MOUSELEAVE)) return;
  lit_ = over;
  Repaint();
  if (!over) return;
  TRACKMOUSEEVENT leaving = {sizeof leaving, TME_LEAVE, Handle(), 0};
  TrackMouseEvent(&leaving);
}

// A press that began here ends here.
LRESULT LabelWindow::Receive(const Message& message) {
  FollowPointer(message);
  if (message.id == WM_LBUTTONDOWN) SetCapture(Handle());
  if (message.id == WM_LBUTTONUP && GetCapture() == Handle()) ReleaseCapture();
  return PaintedWindow::Receive(message);
}

void LabelWindow::Paint(HDC dc, const RECT& area) {
  const SelectScope font(dc, Font());
  if (style_ == LabelStyle::Cell) return PaintCell(dc, area);
  PaintGround(dc);
  if (style_ == LabelStyle::Title) return PaintTitle(dc, area);
  if (style_ == LabelStyle::Strip) return PaintStrip(dc, area);
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

void LabelWindow::PaintTitle(HDC dc, RECT area) const {
  const int gap = Scale::Of(Handle()).Pixels(kTitleGap);
  RECT text = area;
  DrawTextW(dc, Wide(Caption()), -1, &text, DT_CALCRECT | DT_SINGLELINE);
  const RECT cleared = {area.right - text.right - 2 * gap, area.top, area.right, area.bottom};
  const GdiObject<HBRUSH> ground(CreateSolidBrush(GetBkColor(dc)));
  if (text.right > 0) FillRect(dc, &cleared, ground.Get());
  area.right -= gap;
  PaintCaption(dc, area, DT_RIGHT | DT_SINGLELINE);
}

void LabelWindow::PaintStrip(HDC dc, const RECT& area) const {
  if (!lit_) return;
  const GdiObject<HBRUSH> tint(CreateSolidBrush(TintOn(GetBkColor(dc))));
  FillRect(dc, &area, tint.Get());
}

LabelPeer::LabelPeer(Label& label, HWND parent, PeerHost& host)
    : LabelPeer(label, std::make_shared<LabelWindow>(parent, label.Style()), host) {}

LabelPeer::LabelPeer(Label& label, std::shared_ptr<LabelWindow> window, PeerHost& host)
    : CaptionPeer(label, window, host), label_(label), window_(*window) {}

void LabelPeer::Update(Property property) {
  CaptionPeer::Update(property);
  if (property == Property::ToolTip) window_.Tip().Text(label_.ToolTip());
}

void LabelPeer::Compare(DifferenceList& differences) const {
  CaptionPeer::Compare(differences);
  differences.Check(label_, "ToolTip", window_.Tip().Text() == label_.ToolTip());
}

}  // namespace lumenote
