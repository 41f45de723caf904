// A spinner: a pair of arrows that step a number.
#pragma once
#include <functional>

#include "forms/Control.h"

namespace lumenote {

/// `Value` stays within `Min`..`Max`; a real change raises Change, whatever caused it.
class UpDown : public Control {
 public:
  UpDown(Container& container, std::string name, Rect bounds, int minimum, int maximum, int value)
      : Control(container, std::move(name), bounds), min_(minimum), max_(maximum), value_(value) {}

  int Min() const { return min_; }
  int Max() const { return max_; }
  int Value() const { return value_; }
  /// Raises InvalidPropertyValue (380) outside the range.
  void Value(int value);
  /// Sets the value, clipped to the range, without raising Change.
  void Preset(int value);
  bool TakesFocus() const override { return true; }

  std::function<void()> Change;

  /// User input: one click on an arrow; ignored at the end of the range.
  void UserSpin(bool up);

  void Describe(MemberTable& members) override;

 private:
  int min_;
  int max_;
  int value_;
};

}  // namespace lumenote
