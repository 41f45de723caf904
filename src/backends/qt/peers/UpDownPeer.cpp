#include "backends/qt/peers/UpDownPeer.h"

#include <QKeyEvent>

namespace lumenote {

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

void UpDownWidget::resizeEvent(QResizeEvent*) {
  const int middle = height() / 2;
  up_.setGeometry(0, 0, width(), middle);
  down_.setGeometry(0, middle, width(), height() - middle);
}

void UpDownWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up)
    up_.click();
  else if (event->key() == Qt::Key_Down)
    down_.click();
  else
    QWidget::keyPressEvent(event);
}

UpDownPeer::UpDownPeer(UpDown& spinner, QWidget& parent, LayouterSource&)
    : UpDownPeer(spinner, new UpDownWidget(&parent)) {}

UpDownPeer::UpDownPeer(UpDown& spinner, UpDownWidget* widget)
    : ControlPeer(spinner, *widget), widget_(*widget) {
  for (const bool up : {true, false})
    connect(&widget->Arrow(up), &QToolButton::clicked, this,
            [&spinner, up] { spinner.UserSpin(up); });
}

}  // namespace lumenote
