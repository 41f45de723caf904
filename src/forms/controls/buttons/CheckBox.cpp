#include "forms/controls/buttons/CheckBox.h"

#include "base/Numbers.h"
#include "forms/Form.h"

namespace lumenote {

void CheckBox::Value(int value) {
  if (value != 0 && value != 1) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  if (value == value_) return;
  value_ = value;
  Changed(Property::Value);
}

void CheckBox::UserClick() {
  Value(1 - value_);
  CaptionedControl::UserClick();
}

bool CheckBox::UserKey(const KeyStroke& key) {
  if (key.name != KeyName::Space) return false;
  UserClick();
  return true;
}

void CheckBox::Describe(MemberTable& members) {
  CaptionedControl::Describe(members);
  members.Add(
      "Value", [this] { return lumenote::Value(Value()); },
      [this](const lumenote::Value& value) { Value(ToInt32(NumberOf(value))); });
}

}  // namespace lumenote
