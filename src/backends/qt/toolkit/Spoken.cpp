#include "backends/qt/toolkit/Spoken.h"

namespace lumenote {

namespace {

QAccessibleInterface* MakeInterfaceOf(const QString&, QObject* object) {
  auto* spoken = dynamic_cast<Spoken*>(object);
  return spoken ? spoken->MakeInterface(*static_cast<QWidget*>(object)) : nullptr;
}

}  // namespace

Spoken::Spoken() {
  [[maybe_unused]] static const bool kInstalled = [] {
    QAccessible::installFactory(MakeInterfaceOf);
    return true;
  }();
}

QAccessibleInterface* Spoken::MakeInterface(QWidget& widget) {
  return new AccessibleWidget(widget, *this);
}

QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> AccessibleWidget::relations(
    QAccessible::Relation match) const {
  auto all = QAccessibleWidget::relations(match);
  const auto add = [&](QWidget* other, QAccessible::Relation relation) {
    if (other && (match & relation))
      all.append({QAccessible::queryAccessibleInterface(other), relation});
  };
  add(spoken_.LabelledBy(), QAccessible::Label);
  add(spoken_.LabelFor(), QAccessible::Labelled);
  return all;
}

}  // namespace lumenote
