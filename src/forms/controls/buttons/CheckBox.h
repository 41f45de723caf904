// A check box.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

/// `Value` is 0 or 1. Only the user's click raises Click.
class CheckBox : public CaptionedControl {
 public:
  CheckBox(Container& container, std::string name, Rect bounds, std::u16string caption)
      : CaptionedControl(container, std::move(name), bounds, std::move(caption)) {}

  int Value() const { return value_; }
  /// Raises InvalidPropertyValue (380) for anything but 0 and 1.
  void Value(int value);
  bool TakesFocus() const override { return true; }

  /// User input.
  void UserClick() override;
  bool UserKey(const KeyStroke& key) override;

  void Describe(MemberTable& members) override;

 private:
  int value_ = 0;
};

}  // namespace lumenote
