// Choosing the timer that ticks next.
#include "forms/ManualClock.h"

#include <algorithm>

#include "forms/Timer.h"

namespace lumenote {

void ManualClock::Arm(Timer& timer) { armed_.push_back({&timer, now_ + timer.Interval()}); }

void ManualClock::Disarm(Timer& timer) {
  std::erase_if(armed_, [&](const Armed& armed) { return armed.timer == &timer; });
}

ManualClock::Armed* ManualClock::Next(std::int64_t until) {
  const auto next = std::min_element(armed_.begin(), armed_.end(),
                                     [](const Armed& a, const Armed& b) { return a.due < b.due; });
  return next == armed_.end() || next->due > until ? nullptr : &*next;
}

void ManualClock::Advance(std::int64_t milliseconds) {
  const std::int64_t end = now_ + milliseconds;
  while (Armed* next = Next(end)) {
    now_ = std::max(now_, next->due);
    next->due += next->timer->Interval();
    next->timer->Elapsed();
  }
  now_ = std::max(now_, end);
}

}  // namespace lumenote
