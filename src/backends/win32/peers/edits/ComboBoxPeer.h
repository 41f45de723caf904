// The peer of drop-down lists.
#pragma once
#include "backends/win32/peers/base/ControlPeer.h"
#include "backends/win32/peers/edits/EditKeys.h"
#include "forms/controls/edits/ComboBox.h"

namespace lumenote {

/// Only a choice from the open list is one: keys open the list first, and neither the wheel nor
/// leaving the box chooses.
class ComboBoxPeer final : public ControlPeer {
 public:
  ComboBoxPeer(ComboBox& combo, HWND parent, PeerHost& host);
  ~ComboBoxPeer() override;

  HWND FocusTarget() const override { return edit_ ? edit_->Handle() : Handle(); }
  void Update(Property property) override;
  void ShowName() override;
  void Compare(DifferenceList& differences) const override;

 protected:
  LONG Role() const override { return ROLE_SYSTEM_COMBOBOX; }
  std::optional<LRESULT> Hear(const Message& message) override;
  std::optional<LRESULT> HearNotice(const Message& message) override;
  bool Wants(const KeyStroke& key) const override;
  void Place(const RECT& bounds) override;

 private:
  /// What reaches the text of an editable box is heard as the box's own.
  class EditListener final : public MessageListener {
   public:
    explicit EditListener(ComboBoxPeer& peer) : peer_(peer) {}
    std::optional<LRESULT> Hear(const Message& message) override { return peer_.HearEdit(message); }
    std::optional<LRESULT> HearNotice(const Message&) override { return std::nullopt; }

   private:
    ComboBoxPeer& peer_;
  };

  std::optional<LRESULT> HearEdit(const Message& message);
  bool Opens(const Message& message) const;
  bool IsOpen() const { return Tell(CB_GETDROPPEDSTATE) != 0; }
  void Open();
  void Closed();
  void ShowList();
  void ShowContent();
  std::u16string Entry(int index) const;
  void CentreEdit() const;
  int LineHeight() const;
  void SetLineHeight(int pixels) const;

  ComboBox& combo_;
  std::shared_ptr<Window> edit_;  // null for a list without editing
  EditListener listener_{*this};
  std::optional<Annotation> editName_;
  bool pushing_ = false;
  bool chosen_ = false;  // the list is closing with a choice
};

}  // namespace lumenote
