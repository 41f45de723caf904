#include "backends/qt/windows/Shot.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>

namespace lumenote {

bool SaveWindowShot(const WidgetRegistry& widgets, const Element& form, const QString& path) {
  auto* window = widgets.Find<QWidget>(form);
  if (!window) return false;
  QCoreApplication::sendPostedEvents();  // lets scroll bars appear and disappear
  return window->grab().save(path, "PNG");
}

}  // namespace lumenote
