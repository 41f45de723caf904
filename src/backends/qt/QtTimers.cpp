#include "backends/qt/QtTimers.h"

namespace lumenote {

void QtTimers::Arm(Timer& timer) {
  std::unique_ptr<QTimer, Later> native(new QTimer);
  native->setTimerType(Qt::PreciseTimer);
  QObject::connect(native.get(), &QTimer::timeout, [&timer] { timer.Elapsed(); });
  native->start(timer.Interval());
  timers_[&timer] = std::move(native);
}

void QtTimers::Disarm(Timer& timer) { timers_.erase(&timer); }

}  // namespace lumenote
