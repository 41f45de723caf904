#include "Machine.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "lumenote/QtPlatform.h"

namespace lumenote {

std::shared_ptr<Platform> TheMachine() {
  // Never destroyed: at the process's end the toolkit's own statics would go before it.
  static const auto& machine = *new std::shared_ptr<Platform>(std::make_shared<QtPlatform>());
  return machine;
}

void Pump(int milliseconds) {
  TheMachine()->Windows();  // on the right thread, and with an application object
  if (milliseconds <= 0) {
    QCoreApplication::processEvents();
    return;
  }
  QTimer end;
  end.setSingleShot(true);
  end.start(milliseconds);
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace lumenote
