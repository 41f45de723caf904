// The peer of rich-text boxes.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "backends/win32/view/SurfaceWindow.h"
#include "forms/controls/edits/RichTextBox.h"

namespace lumenote {

class RichTextPeer final : public ControlPeer {
 public:
  RichTextPeer(RichTextBox& box, HWND parent, PeerHost& host);
  ~RichTextPeer() override;

  void Compare(DifferenceList& differences) const override;
  void Rescale() override;

 protected:
  LONG Role() const override { return 0; }
  bool PassesInput() const override { return false; }  // the surface's own window does

 private:
  RichTextPeer(RichTextBox& box, std::shared_ptr<SurfaceWindow> window, PeerHost& host);

  RichTextBox& box_;
  SurfaceWindow& window_;
};

}  // namespace lumenote
