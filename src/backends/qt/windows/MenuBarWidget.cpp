#include "backends/qt/windows/MenuBarWidget.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/windows/MenuBarStyle.h"

namespace lumenote {

MenuBarWidget::MenuBarWidget(QWidget& window, Form& form) : QMenuBar(&window), form_(&form) {
  setNativeMenuBar(false);
  setFont(ControlFont());
  auto* style = new MenuBarStyle;
  style->setParent(this);
  setStyle(style);
}

// Qt lights a menu without opening it only for the pointer.
void MenuBarWidget::TakeKeyboard() {
  setFocus(Qt::MenuBarFocusReason);
  for (QAction* action : actions()) {
    if (!action->isEnabled() || !action->isVisible()) continue;
    const QPointF at = actionGeometry(action).center();
    QMouseEvent hover(QEvent::MouseMove, at, mapToGlobal(at), Qt::NoButton, {}, Qt::NoModifier);
    return mouseMoveEvent(&hover);
  }
}

bool MenuBarWidget::eventFilter(QObject* object, QEvent* event) {
  return event->type() != QEvent::ShortcutOverride && QMenuBar::eventFilter(object, event);
}

// In a window that is not active Qt moves no focus.
void MenuBarWidget::keyPressEvent(QKeyEvent* event) {
  const bool leaves = event->matches(QKeySequence::Cancel);
  QMenuBar::keyPressEvent(event);
  if (form_ && leaves) form_->LeaveMenuBar();
}

// When a list closes, Qt decides only then whether the bar keeps a menu lit.
void MenuBarWidget::focusInEvent(QFocusEvent* event) {
  QMenuBar::focusInEvent(event);
  if (form_) form_->UserMenuBarFocus(true);
  if (event->reason() == Qt::PopupFocusReason)
    QMetaObject::invokeMethod(this, &MenuBarWidget::LeaveUnlit, Qt::QueuedConnection);
}

void MenuBarWidget::LeaveUnlit() {
  if (form_ && hasFocus() && !activeAction()) form_->LeaveMenuBar();
}

// An open list leaves the keyboard with the bar.
void MenuBarWidget::focusOutEvent(QFocusEvent* event) {
  QMenuBar::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason) return;
  QEvent leave(QEvent::Leave);
  leaveEvent(&leave);
  if (form_) form_->UserMenuBarFocus(false);
}

}  // namespace lumenote
