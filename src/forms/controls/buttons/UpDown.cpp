#include "forms/controls/buttons/UpDown.h"

#include <algorithm>

#include "base/Numbers.h"
#include "forms/Form.h"

namespace lumenote {

void UpDown::Value(int value) {
  if (value < min_ || value > max_) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  if (value == value_) return;
  value_ = value;
  if (Change) Owner().Raise(Change);
}

void UpDown::Preset(int value) { value_ = std::clamp(value, min_, max_); }

void UpDown::UserSpin(bool up) {
  const int value = value_ + (up ? 1 : -1);
  if (value >= min_ && value <= max_) Value(value);
}

void UpDown::Describe(MemberTable& members) {
  Control::Describe(members);
  members.Add(
      "Value", [this] { return lumenote::Value(Value()); },
      [this](const lumenote::Value& value) { Value(ToInt32(NumberOf(value))); });
  members.Add("Min", [this] { return lumenote::Value(Min()); });
  members.Add("Max", [this] { return lumenote::Value(Max()); });
}

}  // namespace lumenote
