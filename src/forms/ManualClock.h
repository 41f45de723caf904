// Timers on a clock that advances only on request.
#pragma once
#include <cstdint>
#include <vector>

namespace lumenote {

class Timer;

/// For backends without a real clock. Timers must outlive it or be disarmed first.
class ManualClock {
 public:
  void Arm(Timer& timer);
  void Disarm(Timer& timer);
  /// Advances the clock, the last millisecond included. Each timer ticks whenever its interval has
  /// elapsed, ordered by time, then by arming. A timer that a tick rearms counts from then. A tick
  /// may itself advance the clock; neither call ends before its own time.
  void Advance(std::int64_t milliseconds);

 private:
  struct Armed {
    Timer* timer;
    std::int64_t due;
  };
  /// The next timer due by then; null if there is none.
  Armed* Next(std::int64_t until);

  std::vector<Armed> armed_;  // in order of arming
  std::int64_t now_ = 0;
};

}  // namespace lumenote
