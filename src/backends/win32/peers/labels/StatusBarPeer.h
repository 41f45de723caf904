// The peer of status bars.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "forms/controls/StatusBar.h"

namespace lumenote {

/// Each panel is as wide as its text.
class StatusBarPeer final : public ControlPeer {
 public:
  StatusBarPeer(StatusBar& bar, HWND parent, PeerHost& host);

  bool IsDocked() const override { return true; }
  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 private:
  void ShowPanels();
  /// The right edges of the panels, in pixels.
  std::vector<int> Edges() const;
  std::u16string Shown(int number) const;

  StatusBar& bar_;
};

}  // namespace lumenote
