#include "backends/qt/peers/AccessibleCombo.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace lumenote {

QAccessible::State AccessibleCombo::state() const {
  QAccessible::State state = AccessibleWidget::state();
  state.hasPopup = state.expandable = true;
  state.expanded = combo_.view()->isVisible();
  state.collapsed = !state.expanded;
  state.editable = combo_.isEditable();
  if (combo_.isEditable()) state.focused = state.focusable = false;
  return state;
}

QString AccessibleCombo::text(QAccessible::Text what) const {
  const bool says =
      what == QAccessible::Value || (what == QAccessible::Description && !combo_.isEditable());
  return says ? combo_.currentText() : AccessibleWidget::text(what);
}

QAccessibleInterface* AccessibleCombo::child(int index) const {
  if (index == 0) return QAccessible::queryAccessibleInterface(combo_.view());
  return index == 1 ? QAccessible::queryAccessibleInterface(combo_.lineEdit()) : nullptr;
}

int AccessibleCombo::indexOfChild(const QAccessibleInterface* child) const {
  if (child->object() == combo_.view()) return 0;
  return child->object() == combo_.lineEdit() ? 1 : -1;
}

QStringList AccessibleCombo::actionNames() const { return {showMenuAction(), setFocusAction()}; }

void AccessibleCombo::doAction(const QString& action) {
  if (action == showMenuAction())
    combo_.view()->isVisible() ? combo_.hidePopup() : combo_.showPopup();
  else
    AccessibleWidget::doAction(action);
}

}  // namespace lumenote
