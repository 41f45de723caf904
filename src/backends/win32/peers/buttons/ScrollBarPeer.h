// The peer of scroll bars.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "forms/controls/buttons/ScrollBar.h"

namespace lumenote {

class ScrollBarPeer final : public ControlPeer {
 public:
  ScrollBarPeer(ScrollBar& bar, HWND parent, PeerHost& host);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 protected:
  LONG Role() const override { return ROLE_SYSTEM_SCROLLBAR; }
  std::optional<LRESULT> HearNotice(const Message& message) override;
  bool Wants(const KeyStroke& key) const override;

 private:
  /// What the bar shows; `nTrackPos` is where it is dragged to.
  SCROLLINFO Shown() const;
  int Wanted(int action) const;

  ScrollBar& bar_;
};

}  // namespace lumenote
