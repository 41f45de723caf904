// The peer of one-line edit boxes.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "backends/win32/peers/edits/EditKeys.h"
#include "forms/controls/edits/TextBox.h"

namespace lumenote {

class TextBoxPeer final : public ControlPeer {
 public:
  TextBoxPeer(TextBox& box, HWND parent, PeerHost& host);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 protected:
  LONG Role() const override { return ROLE_SYSTEM_TEXT; }
  std::optional<LRESULT> HearNotice(const Message& message) override;
  bool Wants(const KeyStroke& key) const override { return IsEditKey(key); }

 private:
  TextBox& box_;
  bool pushing_ = false;  // what the box tells now is an echo
};

}  // namespace lumenote
