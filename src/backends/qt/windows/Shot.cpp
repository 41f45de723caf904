#include "backends/qt/windows/Shot.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>

#include "lumenote/RuntimeError.h"

namespace lumenote {

namespace {

constexpr qint64 kMaxPixels = qint64{1} << 25;  // of the largest screens; takes 128 MB

qint64 DevicePixels(const QWidget& window) {
  const QSizeF size = QSizeF(window.size()) * window.devicePixelRatioF();
  return static_cast<qint64>(size.width() * size.height());
}

[[noreturn]] void Fail(const QString& path, std::u16string_view why) {
  throw RuntimeError(ErrorNumber::PathAccess, path.toStdU16String() + u" : " + std::u16string(why));
}

}  // namespace

void SaveWindowShot(const WidgetRegistry& widgets, const Element& form, const QString& path) {
  auto* window = widgets.Find<QWidget>(form);
  if (!window) Fail(path, u"fenêtre fermée");
  if (DevicePixels(*window) > kMaxPixels) Fail(path, u"fenêtre trop grande");
  QCoreApplication::sendPostedEvents();  // lets scroll bars appear and disappear
  if (!window->grab().save(path, "PNG")) Fail(path, u"écriture impossible");
}

}  // namespace lumenote
