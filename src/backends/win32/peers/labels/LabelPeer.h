// The peer of labels.
#pragma once
#include "backends/win32/peers/base/CaptionPeer.h"
#include "backends/win32/toolkit/PaintedWindow.h"
#include "backends/win32/toolkit/ToolTip.h"
#include "forms/controls/labels/Label.h"

namespace lumenote {

/// Wrapped text from the upper left corner, without the mnemonic's ampersand; a cell has a frame, a
/// title interrupts the border behind it, a strip shows nothing until the pointer is over it.
class LabelWindow final : public PaintedWindow {
 public:
  LabelWindow(HWND parent, LabelStyle style);

  ToolTip& Tip() { return tip_; }

 protected:
  LRESULT Receive(const Message& message) override;
  void Paint(HDC dc, const RECT& area) override;

 private:
  void FollowPointer(const Message& message);
  void PaintCell(HDC dc, const RECT& area) const;
  void PaintTitle(HDC dc, RECT area) const;
  void PaintStrip(HDC dc, const RECT& area) const;

  LabelStyle style_;
  bool lit_ = false;  // the pointer is over the strip
  ToolTip tip_{Handle()};
};

class LabelPeer final : public CaptionPeer {
 public:
  LabelPeer(Label& label, HWND parent, PeerHost& host);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 protected:
  LONG Role() const override {
    return label_.Style() == LabelStyle::Strip ? ROLE_SYSTEM_PUSHBUTTON : ROLE_SYSTEM_STATICTEXT;
  }
  bool ClicksByMouse() const override { return true; }

 private:
  LabelPeer(Label& label, std::shared_ptr<LabelWindow> window, PeerHost& host);

  Label& label_;
  LabelWindow& window_;
};

}  // namespace lumenote
