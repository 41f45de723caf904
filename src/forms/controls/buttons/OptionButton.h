// A radio button.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

/// At most one option button of a container is chosen. Only the user's click raises Click.
class OptionButton : public CaptionedControl {
 public:
  OptionButton(Container& container, std::string name, Rect bounds, std::u16string caption)
      : CaptionedControl(container, std::move(name), bounds, std::move(caption)) {}

  bool Value() const { return value_; }
  void Value(bool on);
  bool TakesFocus() const override { return true; }

  /// User input; clicking the chosen button raises Click, too.
  void UserClick() override;
  bool UserKey(const KeyStroke& key) override;

  void Describe(MemberTable& members) override;

 private:
  bool value_ = false;
};

}  // namespace lumenote
