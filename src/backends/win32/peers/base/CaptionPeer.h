// The base of peers that show a caption.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "forms/CaptionedControl.h"

namespace lumenote {

/// The caption is the text of the native window.
class CaptionPeer : public ControlPeer {
 public:
  CaptionPeer(CaptionedControl& control, std::shared_ptr<Window> window, PeerHost& host);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 protected:
  CaptionedControl& Captioned() const { return control_; }

 private:
  CaptionedControl& control_;
};

}  // namespace lumenote
