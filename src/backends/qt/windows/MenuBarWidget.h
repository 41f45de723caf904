// The menu bar of a window.
#pragma once
#include <QMenuBar>

#include "forms/Form.h"

namespace lumenote {

/// Which key calls for the bar is the form's affair, since the bar may be hidden; Qt's own way to
/// it, the Alt key, is closed.
class MenuBarWidget : public QMenuBar {
 public:
  MenuBarWidget(QWidget& window, Form& form);

  void Detach() { form_ = nullptr; }
  /// Lights the first menu.
  void TakeKeyboard();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void LeaveUnlit();

  Form* form_;  // null once it is going
};

}  // namespace lumenote
