// Simulated user input without a window system.
#pragma once
#include "base/Position.h"
#include "forms/controls/UserActs.h"

namespace lumenote {

class HeadlessBackend;

/// Calls the elements' `User...` members, on windows of a `HeadlessBackend`.
class HeadlessActs final : public UserActs {
 public:
  /// `backend` outlives the acts.
  explicit HeadlessActs(const HeadlessBackend& backend) : backend_(backend) {}

  void Click(Control& control) override;
  void DoubleClick(Control& control) override;
  void Choose(Menu& entry) override;
  void Open(Menu& menu) override;
  void Type(Control& control, std::u16string_view text) override;
  void Key(Control& control, const KeyStroke& key) override;
  void Select(RichTextBox& box, Position start, Position length) override;
  void Mouse(Control& control, MouseAct act, const MouseEvent& event) override;
  void Drag(RichTextBox& box, Position start, Position length, Position to) override;
  void Spin(UpDown& spinner, bool up) override;
  void Pick(ComboBox& combo, int index) override;
  void Drop(ComboBox& combo) override;
  void Resize(Form& form, float width, float height) override;
  void Activate(Form& form) override;
  void Close(Form& form) override;

 private:
  void PressKey(Control& control, const KeyStroke& key);
  void TypeKey(Control& control, std::u16string_view key);

  const HeadlessBackend& backend_;
};

}  // namespace lumenote
