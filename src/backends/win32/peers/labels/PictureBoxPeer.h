// The peer of sunken containers.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "backends/win32/toolkit/PaintedWindow.h"
#include "backends/win32/toolkit/drawing/Colours.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/input/Keys.h"
#include "forms/controls/labels/PictureBox.h"

namespace lumenote {

/// Shows the ground of its parent in a border, which its controls may cover, and takes the keyboard
/// when clicked.
class PictureWindow final : public PaintedWindow {
 public:
  explicit PictureWindow(HWND parent)
      : PaintedWindow(parent, WindowKind{OwnClass(L"LumenotePicture", CS_DBLCLKS),
                                         WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                                         WS_EX_CONTROLPARENT}) {}

 protected:
  LRESULT Receive(const Message& message) override {
    if (message.id == WM_LBUTTONDOWN) SetFocus(Handle());
    return PaintedWindow::Receive(message);
  }
  void Paint(HDC dc, const RECT& area) override {
    PaintGround(dc);
    const GdiObject<HBRUSH> line(CreateSolidBrush(LineOn(GetBkColor(dc), GetTextColor(dc))));
    FrameRect(dc, &area, line.Get());
  }
};

class PictureBoxPeer final : public ControlPeer {
 public:
  PictureBoxPeer(PictureBox& box, HWND parent, PeerHost& host)
      : ControlPeer(box, std::make_shared<PictureWindow>(parent), host), box_(box) {}

 protected:
  LONG Role() const override { return ROLE_SYSTEM_GROUPING; }
  std::optional<LRESULT> Hear(const Message& message) override {
    const auto key = message.id == WM_KEYDOWN ? StrokeOf(message.w) : std::nullopt;
    return key && box_.UserKey(*key) ? 0 : ControlPeer::Hear(message);
  }

 private:
  PictureBox& box_;
};

}  // namespace lumenote
