#include "backends/qt/peers/UpDownPeer.h"

#include <QKeyEvent>
#include <QLocale>

#include "backends/qt/toolkit/QtText.h"
#include "forms/controls/edits/TextBox.h"

namespace lumenote {

namespace {

/// The box whose number a spinner steps: the last one before it in its container; null for none.
const TextBox* NumberBoxOf(const UpDown& spinner) {
  const TextBox* found = nullptr;
  for (const Control* other : spinner.Parent().Controls()) {
    if (other == &spinner) break;
    if (const auto* box = dynamic_cast<const TextBox*>(other)) found = box;
  }
  return found;
}

/// Its value is the number in the box that it steps, whose ends nobody knows but the note.
class AccessibleSpinner final : public AccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit AccessibleSpinner(UpDownWidget& widget)
      : AccessibleWidget(widget, widget), widget_(widget) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text what) const override {
    return what == QAccessible::Value ? widget_.Number() : AccessibleWidget::text(what);
  }

  // QAccessibleValueInterface
  QVariant currentValue() const override {
    return QLocale(QLocale::French).toDouble(widget_.Number());
  }
  void setCurrentValue(const QVariant& value) override {
    const double step = value.toDouble() - currentValue().toDouble();
    if (step != 0) widget_.Step(step > 0);
  }
  QVariant maximumValue() const override { return kMost; }
  QVariant minimumValue() const override { return -kMost; }
  QVariant minimumStepSize() const override { return 0; }

 private:
  static constexpr double kMost = 32767;

  UpDownWidget& widget_;
};

}  // namespace

UpDownWidget::UpDownWidget(QWidget* parent) : SpokenWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  for (QToolButton* arrow : {&up_, &down_}) {
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setAutoRepeat(true);
  }
  up_.setArrowType(Qt::UpArrow);
  up_.setAccessibleName(QStringLiteral("Augmenter"));
  down_.setArrowType(Qt::DownArrow);
  down_.setAccessibleName(QStringLiteral("Diminuer"));
}

QAccessibleInterface* UpDownWidget::MakeInterface(QWidget&) { return new AccessibleSpinner(*this); }

void UpDownWidget::Step(bool up) { Arrow(up).click(); }

void UpDownWidget::resizeEvent(QResizeEvent*) {
  const int middle = height() / 2;
  up_.setGeometry(0, 0, width(), middle);
  down_.setGeometry(0, middle, width(), height() - middle);
}

void UpDownWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up)
    Step(true);
  else if (event->key() == Qt::Key_Down)
    Step(false);
  else
    QWidget::keyPressEvent(event);
}

UpDownPeer::UpDownPeer(UpDown& spinner, QWidget& parent, LayouterSource&)
    : UpDownPeer(spinner, new UpDownWidget(&parent)) {}

UpDownPeer::UpDownPeer(UpDown& spinner, UpDownWidget* widget)
    : ControlPeer(spinner, *widget), spinner_(spinner), widget_(*widget) {
  for (const bool up : {true, false})
    connect(&widget->Arrow(up), &QToolButton::clicked, this, [this, up] { Spin(up); });
  widget->Number([&spinner] {
    const TextBox* box = NumberBoxOf(spinner);
    return box ? ToQString(box->Text()) : QString();
  });
}

// The step may close the window.
void UpDownPeer::Spin(bool up) {
  const QPointer<UpDownWidget> widget = &widget_;
  spinner_.UserSpin(up);
  if (!widget) return;
  QAccessibleValueChangeEvent event(widget, widget->Number());
  QAccessible::updateAccessibility(&event);
}

}  // namespace lumenote
