#include "forms/controls/buttons/ScrollBar.h"

#include <algorithm>

#include "base/Numbers.h"
#include "forms/Form.h"

namespace lumenote {

void ScrollBar::Range(int minimum, int maximum) {
  min_ = minimum;
  max_ = maximum;
  const int clipped = std::clamp(value_, min_, max_);
  Changed(Property::Value);
  Value(clipped);
}

void ScrollBar::Min(int minimum) { Range(minimum, std::max(minimum, max_)); }

void ScrollBar::Max(int maximum) { Range(std::min(min_, maximum), maximum); }

void ScrollBar::Value(int value) {
  if (value < min_ || value > max_) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  if (value == value_) return;
  value_ = value;
  Changed(Property::Value);
  if (Change) Owner().Raise(Change);
}

void ScrollBar::UserScroll(int value) { Value(std::clamp(value, min_, max_)); }

void ScrollBar::Describe(MemberTable& members) {
  Control::Describe(members);
  members.Add("Min", [this] { return lumenote::Value(Min()); });
  members.Add("Max", [this] { return lumenote::Value(Max()); });
  members.Add(
      "Value", [this] { return lumenote::Value(Value()); },
      [this](const lumenote::Value& value) { Value(ToInt32(NumberOf(value))); });
}

}  // namespace lumenote
