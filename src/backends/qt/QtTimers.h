// The forms' timers in Qt's event loop.
#pragma once
#include <QTimer>
#include <memory>
#include <unordered_map>

#include "forms/Timer.h"

namespace lumenote {

/// A timer never ticks during its own tick.
class QtTimers {
 public:
  void Arm(Timer& timer);
  void Disarm(Timer& timer);

 private:
  struct Later {
    void operator()(QTimer* timer) const {
      timer->stop();
      timer->disconnect();
      timer->deleteLater();
    }
  };
  std::unordered_map<Timer*, std::unique_ptr<QTimer, Later>> timers_;
};

}  // namespace lumenote
