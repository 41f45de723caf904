// A vertical scroll bar.
#pragma once
#include <functional>

#include "forms/Control.h"

namespace lumenote {

/// `Value` stays within `Min`..`Max`; a real change of it raises Change, whoever made it.
class ScrollBar : public Control {
 public:
  using Control::Control;

  int Min() const { return min_; }
  int Max() const { return max_; }
  /// A value outside the new range is clipped to it. An end on the wrong side of the other takes it
  /// along.
  void Min(int least);
  void Max(int most);
  int Value() const { return value_; }
  /// Raises InvalidPropertyValue (380) outside the range.
  void Value(int value);
  bool TakesFocus() const override { return true; }

  std::function<void()> Change;

  /// The user's door: dragged or stepped to a value; one outside the range is clipped.
  void UserScroll(int value);

  void Describe(MemberTable& members) override;

 private:
  void Range(int least, int most);

  int min_ = 0;
  int max_ = 0;
  int value_ = 0;
};

}  // namespace lumenote
