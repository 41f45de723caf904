#include "backends/qt/toolkit/SpokenWidget.h"

#include <QAccessibleWidget>

namespace lumenote {

namespace {

class AccessibleWidget final : public QAccessibleWidget {
 public:
  explicit AccessibleWidget(SpokenWidget& widget) : QAccessibleWidget(&widget), widget_(widget) {}

  QAccessible::Role role() const override { return widget_.Role(); }

 private:
  SpokenWidget& widget_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* widget = dynamic_cast<SpokenWidget*>(object);
  return widget ? new AccessibleWidget(*widget) : nullptr;
}

}  // namespace

SpokenWidget::SpokenWidget(QWidget* parent, Qt::WindowFlags flags) : QWidget(parent, flags) {
  [[maybe_unused]] static const bool kInstalled = [] {
    QAccessible::installFactory(MakeInterface);
    return true;
  }();
}

}  // namespace lumenote
