// The peer of spinners.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "forms/controls/buttons/UpDown.h"

namespace lumenote {

class UpDownPeer final : public ControlPeer {
 public:
  UpDownPeer(UpDown& spinner, HWND parent, PeerHost& host);

 protected:
  LONG Role() const override { return ROLE_SYSTEM_SPINBUTTON; }
  std::optional<LRESULT> Hear(const Message& message) override;
  std::optional<LRESULT> HearNotice(const Message& message) override;
  bool Wants(const KeyStroke& key) const override {
    return key.name == KeyName::Up || key.name == KeyName::Down;
  }

 private:
  UpDown& spinner_;
};

}  // namespace lumenote
