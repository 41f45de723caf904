#include "backends/win32/peers/labels/FramePeer.h"

#include "backends/win32/peers/base/FrameClip.h"
#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Colours.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/drawing/Units.h"

namespace lumenote {
namespace {

/// The line of the border is covered where the title stands.
void PaintBorder(HDC dc, const RECT& area, const RECT& title, int gap) {
  const int saved = SaveDC(dc);
  if (title.right > title.left)
    ExcludeClipRect(dc, title.left - gap, title.top, title.right + gap, title.bottom);
  const RECT border = {area.left, title.bottom / 2, area.right, area.bottom};
  const GdiObject<HBRUSH> line(CreateSolidBrush(LineOn(GetBkColor(dc), GetTextColor(dc))));
  FrameRect(dc, &border, line.Get());
  RestoreDC(dc, saved);
}

}  // namespace

FrameWindow::FrameWindow(HWND parent)
    : PaintedWindow(
          parent, WindowKind{OwnClass(L"LumenoteFrame"),
                             WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT}) {}

void FrameWindow::Paint(HDC dc, const RECT& area) {
  const SelectScope font(dc, Font());
  const std::u16string caption = Caption();
  PaintGround(dc);
  const Scale scale = Scale::Of(Handle());
  const int left = scale.Pixels(kTitleLeft);
  RECT title = {left, 0, left, 0};
  if (!caption.empty()) DrawTextW(dc, Wide(caption), -1, &title, DT_CALCRECT | DT_SINGLELINE);
  PaintBorder(dc, area, title, scale.Pixels(kTitleGap));
  PaintCaption(dc, title, DT_SINGLELINE);
}

LRESULT FrameWindow::Receive(const Message& message) {
  if (message.id == WM_SIZE)
    for (HWND child = GetWindow(Handle(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
      ClipInFrame(child);
  return PaintedWindow::Receive(message);
}

FramePeer::FramePeer(Frame& frame, HWND parent, PeerHost& host)
    : CaptionPeer(frame, std::make_shared<FrameWindow>(parent), host) {}

}  // namespace lumenote
