// A vertical scroll bar.
#pragma once
#include <functional>

#include "forms/Control.h"

namespace lumenote {

/// `Value` stays within `Min`..`Max`; a real change raises Change, whatever caused it.
class ScrollBar : public Control {
 public:
  using Control::Control;

  int Min() const { return min_; }
  int Max() const { return max_; }
  /// Clips the value to the new range. A bound that crosses the other one moves it along.
  void Min(int minimum);
  void Max(int maximum);
  int Value() const { return value_; }
  /// Raises InvalidPropertyValue (380) outside the range.
  void Value(int value);
  bool TakesFocus() const override { return true; }

  std::function<void()> Change;

  /// User input: dragged or stepped to a value, which is clipped to the range.
  void UserScroll(int value);

  void Describe(MemberTable& members) override;

 private:
  void Range(int minimum, int maximum);

  int min_ = 0;
  int max_ = 0;
  int value_ = 0;
};

}  // namespace lumenote
