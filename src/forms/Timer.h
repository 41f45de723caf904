// A window's timer; it ticks in the event loop, never concurrently.
#pragma once
#include <functional>

#include "forms/Element.h"

namespace lumenote {

/// Armed while its form is loaded, it is enabled, its interval is positive and it has a handler.
class Timer : public Element {
 public:
  Timer(Form& form, std::string name);
  ~Timer() override;

  int Interval() const { return interval_; }  // milliseconds
  void Interval(int milliseconds);
  bool Enabled() const { return enabled_; }
  void Enabled(bool on);

  std::function<void()> Tick;

  /// Called by the backend when the interval has elapsed.
  void Elapsed();
  /// Arms or disarms it by the rule above; the form calls this when it is loaded or unloaded.
  void Rearm();

  void Describe(MemberTable& members) override;

 private:
  int interval_ = 0;
  bool enabled_ = false;
  bool armed_ = false;
};

}  // namespace lumenote
