#include "forms/controls/buttons/OptionButton.h"

#include "forms/Form.h"

namespace lumenote {

void OptionButton::Value(bool on) {
  if (on == value_) return;
  if (on)
    for (Control* sibling : Parent().Controls())
      if (auto* other = dynamic_cast<OptionButton*>(sibling)) other->Value(false);
  value_ = on;
  Changed(Property::Value);
}

void OptionButton::UserClick() {
  Value(true);
  CaptionedControl::UserClick();
}

bool OptionButton::UserKey(const KeyStroke& key) {
  if (key.name != KeyName::Space) return false;
  UserClick();
  return true;
}

void OptionButton::Describe(MemberTable& members) {
  CaptionedControl::Describe(members);
  members.Add(
      "Value", [this] { return lumenote::Value(Value()); },
      [this](const lumenote::Value& value) { Value(BooleanOf(value)); });
}

}  // namespace lumenote
