// The forms' timers in the desktop's event loop.
#pragma once
#include <QTimer>
#include <memory>
#include <unordered_map>

#include "forms/Timer.h"

namespace lumenote {

/// A timer does not tick again while its own tick is running.
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
