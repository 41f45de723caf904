// The peer of status bars.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "backends/win32/peers/labels/SignIcon.h"
#include "backends/win32/toolkit/ToolTip.h"
#include "forms/controls/labels/StatusBar.h"

namespace lumenote {

/// Each panel with a text is as wide as that. Behind them are an empty part and the sign, with the
/// grip that resizes the window.
class StatusBarPeer final : public ControlPeer {
 public:
  StatusBarPeer(StatusBar& bar, HWND parent, PeerHost& host);

  bool IsDocked() const override { return true; }
  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 protected:
  LONG Role() const override { return ROLE_SYSTEM_STATUSBAR; }
  void HearHandled(const Message& message) override;

 private:
  void ShowPanels();
  void ShowSign();
  /// The right edges of the parts, in pixels.
  std::vector<int> Edges() const;
  std::u16string Shown(std::size_t part) const;
  bool IsOnSign(POINT point) const;

  StatusBar& bar_;
  SignIcon sign_;
  ToolTip tip_{Handle()};  // of the sign
};

}  // namespace lumenote
