// The peer of labels.
#pragma once
#include "backends/win32/peers/base/CaptionPeer.h"
#include "backends/win32/toolkit/PaintedWindow.h"
#include "forms/controls/Label.h"

namespace lumenote {

/// Wrapped text from the upper left corner, without the mnemonic's ampersand; a cell has a frame.
class LabelWindow final : public PaintedWindow {
 public:
  LabelWindow(HWND parent, LabelStyle style);

 protected:
  LRESULT Receive(const Message& message) override;
  void Paint(HDC dc, const RECT& area) override;

 private:
  void PaintCell(HDC dc, const RECT& area) const;

  LabelStyle style_;
};

class LabelPeer final : public CaptionPeer {
 public:
  LabelPeer(Label& label, HWND parent, PeerHost& host);

 protected:
  bool ClicksByMouse() const override { return true; }
};

}  // namespace lumenote
