#include "backends/qt/QtUserActs.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <stdexcept>

#include "backends/qt/QtBackend.h"
#include "backends/qt/peers/ComboBoxPeer.h"
#include "backends/qt/peers/UpDownPeer.h"
#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/toolkit/MouseButtons.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/SelectionMime.h"
#include "backends/qt/windows/FormWindow.h"
#include "forms/controls/edits/RichTextBox.h"

namespace lumenote {

namespace {

template <class Kind>
Kind& Shown(const WidgetRegistry& widgets, const Element& element) {
  if (auto* found = widgets.Find<Kind>(element)) return *found;
  throw std::logic_error(element.Name() + " is not on screen");
}

/// The mouse at a point of a control; events go to the innermost widget there, past the native
/// window, which is told of buttons that go down and up.
class MousePointer {
 public:
  MousePointer(QWidget& widget, QPointF at) {
    QWidget* inner = widget.childAt(at.toPoint());
    target_ = inner ? inner : &widget;
    at_ = target_->mapFrom(&widget, at);
    window_ = dynamic_cast<FormWindow*>(widget.window());
  }

  /// Any event may destroy the widget.
  void Send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
    if (!target_) return;
    const bool presses = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (presses && window_) window_->Press();
    QMouseEvent event(type, at_, target_->mapToGlobal(at_), button, held, Qt::NoModifier);
    QApplication::sendEvent(target_, &event);
    if (!presses && !held && window_) window_->Release();
  }
  void Press(Qt::MouseButton button, QEvent::Type type = QEvent::MouseButtonPress) {
    Send(type, button, button);
  }
  void Release(Qt::MouseButton button) { Send(QEvent::MouseButtonRelease, button, {}); }
  void Move(Qt::MouseButton held) { Send(QEvent::MouseMove, Qt::NoButton, held); }

 private:
  QPointer<QWidget> target_;
  QPointer<FormWindow> window_;
  QPointF at_;
};

/// An open drop-down list has the keyboard.
QWidget& WithKeyboard(QWidget& widget) {
  QWidget* popup = QApplication::activePopupWidget();
  if (!popup) return widget;
  return popup->focusWidget() ? *popup->focusWidget() : *popup;
}

void PressKey(QWidget& widget, const KeyStroke& key) {
  const QPointer<QWidget> target = &WithKeyboard(widget);
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event = EventOf(key, type);
    if (target) QApplication::sendEvent(target, &event);
  }
}

void TypeCharacter(QWidget& widget, QStringView text) {
  const QPointer<QWidget> target = &widget;
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, text.toString());
    if (target) QApplication::sendEvent(target, &event);
  }
}

}  // namespace

QtUserActs::QtUserActs(QtBackend& backend) : backend_(backend), widgets_(backend.Widgets()) {}

RichTextView& QtUserActs::ViewOf(RichTextBox& box) const {
  return Shown<RichTextView>(widgets_, box);
}

void QtUserActs::Click(Control& control) {
  QWidget& widget = Shown<QWidget>(widgets_, control);
  MousePointer hand(widget, QRectF(widget.rect()).center());
  hand.Press(Qt::LeftButton);
  hand.Release(Qt::LeftButton);
}

void QtUserActs::DoubleClick(Control& control) {
  QWidget& widget = Shown<QWidget>(widgets_, control);
  MousePointer hand(widget, QRectF(widget.rect()).center());
  hand.Press(Qt::LeftButton);
  hand.Release(Qt::LeftButton);
  hand.Press(Qt::LeftButton, QEvent::MouseButtonDblClick);
  hand.Release(Qt::LeftButton);
}

void QtUserActs::Choose(Menu& entry) { Shown<QAction>(widgets_, entry).trigger(); }

void QtUserActs::Open(Menu& menu) {
  if (QMenu* list = Shown<QAction>(widgets_, menu).menu())
    QMetaObject::invokeMethod(list, "aboutToShow");
  else
    menu.UserOpen();
}

void QtUserActs::Type(Control& control, std::u16string_view text) {
  control.SetFocus();
  const QPointer<QWidget> widget = &Shown<QWidget>(widgets_, control);
  const QString typed = ToLines(text);
  for (qsizetype i = 0; i < typed.size() && widget; ++i) {
    const bool pair = typed[i].isHighSurrogate() && i + 1 < typed.size();
    if (typed[i] == u'\n')
      PressKey(*widget, {.name = KeyName::Return});
    else if (typed[i] == u'\t')
      PressKey(*widget, {.name = KeyName::Tab});
    else
      TypeCharacter(*widget, QStringView(typed).mid(i, pair ? 2 : 1));
    if (pair) ++i;
  }
}

void QtUserActs::Key(Control& control, const KeyStroke& key) {
  if (control.Owner().IsForMenuBar(key))
    return PressKey(Shown<FormWindow>(widgets_, control.Owner()).Bar(), key);
  control.SetFocus();
  PressKey(Shown<QWidget>(widgets_, control), key);
}

void QtUserActs::Select(RichTextBox& box, Position start, Position length) {
  box.SetFocus();
  RichTextView& view = ViewOf(box);
  const Position end = start + std::min(length, view.Surface().Content().Length());
  view.Text().Select(start, end);
}

void QtUserActs::Mouse(Control& control, MouseAct act, const MouseEvent& event) {
  MousePointer hand(Shown<QWidget>(widgets_, control),
                    QPointF(ToPixels(event.at.x), ToPixels(event.at.y)));
  const Qt::MouseButton button = ButtonOf(event.button);
  if (act == MouseAct::Down) hand.Press(button);
  if (act == MouseAct::Move) hand.Move(button);
  if (act == MouseAct::Up) hand.Release(button);
}

void QtUserActs::Drag(RichTextBox& box, Position start, Position length, Position to) {
  Select(box, start, length);
  RichTextView& view = ViewOf(box);
  view.Pane().Reveal(to);
  view.Settle();
  const std::optional<PixelRect> caret = view.Pane().CaretAt(to);
  if (!caret) return;
  const SelectionMime content(view, TextDrag(view.Text()));
  const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
  const QPointF at(caret->left, (caret->top + caret->bottom) / 2);
  QDragEnterEvent enter(at.toPoint(), actions, &content, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view.viewport(), &enter);
  QDropEvent drop(at, actions, &content, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view.viewport(), &drop);
}

void QtUserActs::Spin(UpDown& spinner, bool up) {
  spinner.SetFocus();
  QToolButton& arrow = Shown<UpDownWidget>(widgets_, spinner).Arrow(up);
  MousePointer hand(arrow, QRectF(arrow.rect()).center());
  hand.Press(Qt::LeftButton);
  hand.Release(Qt::LeftButton);
}

void QtUserActs::Pick(ComboBox& combo, int index) {
  combo.SetFocus();
  auto& widget = Shown<ComboBoxWidget>(widgets_, combo);
  widget.setCurrentIndex(index);
  emit widget.activated(index);
}

void QtUserActs::Drop(ComboBox& combo) {
  combo.SetFocus();
  const QPointer<ComboBoxWidget> widget = &Shown<ComboBoxWidget>(widgets_, combo);
  widget->showPopup();
  if (widget) widget->hidePopup();
}

void QtUserActs::Resize(Form& form, float width, float height) {
  Shown<FormWindow>(widgets_, form).DragTo(width, height);
}

void QtUserActs::Activate(Form& form) {
  const QPointer<FormWindow> window = &Shown<FormWindow>(widgets_, form);
  backend_.Used(form);
  if (!window || !window->isVisible()) return;
  window->activateWindow();
  QApplication::setActiveWindow(window);
}

void QtUserActs::Close(Form& form) { Shown<FormWindow>(widgets_, form).close(); }

}  // namespace lumenote
