#include "forms/Timer.h"

#include "base/Numbers.h"
#include "forms/Form.h"
#include "lumenote/Platform.h"

namespace lumenote {

Timer::Timer(Form& form, std::string name) : Element(form, std::move(name)) {
  Register();
  form.timers_.push_back(this);
}

Timer::~Timer() {
  if (armed_) Owner().Machine().Windows().Disarm(*this);
}

void Timer::Interval(int milliseconds) {
  if (milliseconds == interval_) return;
  interval_ = milliseconds;
  if (armed_) Owner().Machine().Windows().Disarm(*this);
  armed_ = false;
  Rearm();
}

void Timer::Enabled(bool on) {
  enabled_ = on;
  Rearm();
}

void Timer::Elapsed() { Owner().Raise(Tick); }

void Timer::Rearm() {
  const bool arm = Owner().IsLoaded() && enabled_ && interval_ > 0 && Tick;
  if (arm == armed_) return;
  armed_ = arm;
  Backend& backend = Owner().Machine().Windows();
  if (arm)
    backend.Arm(*this);
  else
    backend.Disarm(*this);
}

void Timer::Describe(MemberTable& members) {
  Element::Describe(members);
  members.Add(
      "Interval", [this] { return Value(Interval()); },
      [this](const Value& value) { Interval(ToInt32(NumberOf(value))); });
  members.Add(
      "Enabled", [this] { return Value(Enabled()); },
      [this](const Value& value) { Enabled(BooleanOf(value)); });
}

}  // namespace lumenote
