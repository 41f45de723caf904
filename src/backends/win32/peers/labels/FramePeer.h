// The peer of frames.
#pragma once
#include "backends/win32/peers/base/CaptionPeer.h"
#include "backends/win32/toolkit/PaintedWindow.h"
#include "forms/controls/labels/Frame.h"

namespace lumenote {

/// A border with the title in its top edge, on the ground of what is behind.
class FrameWindow final : public PaintedWindow {
 public:
  explicit FrameWindow(HWND parent);

 protected:
  void Paint(HDC dc, const RECT& area) override;
  LRESULT Receive(const Message& message) override;
};

class FramePeer final : public CaptionPeer {
 public:
  FramePeer(Frame& frame, HWND parent, PeerHost& host);

 protected:
  LONG Role() const override { return ROLE_SYSTEM_GROUPING; }
};

}  // namespace lumenote
