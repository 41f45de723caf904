// One choice of several.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

/// Of the option buttons in one container at most one is chosen. Only the user's click raises
/// Click.
class OptionButton : public CaptionedControl {
 public:
  OptionButton(Container& container, std::string name, Rect place, std::u16string caption)
      : CaptionedControl(container, std::move(name), place, std::move(caption)) {}

  bool Value() const { return value_; }
  void Value(bool on);
  bool TakesFocus() const override { return true; }

  /// The user's door; a click on the chosen one is a click too.
  void UserClick() override;
  bool UserKey(const KeyStroke& key) override;

  void Describe(MemberTable& members) override;

 private:
  bool value_ = false;
};

}  // namespace lumenote
