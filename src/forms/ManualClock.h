// Timers whose time passes only when it is told to.
#pragma once
#include <cstdint>
#include <vector>

namespace lumenote {

class Timer;

/// For backends without a clock of their own. The timers outlive it or are disarmed before.
class ManualClock {
 public:
  void Arm(Timer& timer);
  void Disarm(Timer& timer);
  /// Lets that time pass, the last millisecond included: each timer ticks whenever its interval has
  /// passed, in the order of time, then of arming. A timer that is armed anew by a tick counts from
  /// then. A tick may let time pass too; both calls end no earlier than they said.
  void Advance(std::int64_t milliseconds);

 private:
  struct Armed {
    Timer* timer;
    std::int64_t due;
  };
  /// The next one that is due by then; null when there is none.
  Armed* Next(std::int64_t until);

  std::vector<Armed> armed_;  // in the order of arming
  std::int64_t now_ = 0;
};

}  // namespace lumenote
