// The peer of sunken containers.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "backends/win32/toolkit/PaintedWindow.h"
#include "backends/win32/toolkit/VisualStyles.h"
#include "forms/controls/PictureBox.h"

namespace lumenote {

/// Shows the ground of its parent and takes the keyboard when clicked.
class PictureWindow final : public PaintedWindow {
 public:
  explicit PictureWindow(HWND parent)
      : PaintedWindow(parent, WindowKind{OwnClass(L"LumenotePicture", CS_DBLCLKS),
                                         WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                                         WS_EX_CLIENTEDGE | WS_EX_CONTROLPARENT}) {}

 protected:
  LRESULT Receive(const Message& message) override {
    if (message.id == WM_LBUTTONDOWN) SetFocus(Handle());
    const LRESULT answer = PaintedWindow::Receive(message);
    if (message.id == WM_NCPAINT) PaintStyledEdge(Handle());
    return answer;
  }
  void Paint(HDC dc, const RECT&) override { PaintGround(dc); }
};

class PictureBoxPeer final : public ControlPeer {
 public:
  PictureBoxPeer(PictureBox& box, HWND parent, PeerHost& host)
      : ControlPeer(box, std::make_shared<PictureWindow>(parent), host) {}
};

}  // namespace lumenote
