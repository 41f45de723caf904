#include "backends/qt/LabelPeer.h"

#include <QPainter>
#include <QStyle>

#include "backends/qt/QtText.h"

namespace lumenote {

namespace {
constexpr int kClearance = 3;
}

void LabelWidget::Text(const QString& text) {
  text_ = text;
  update();
}

void LabelWidget::paintEvent(QPaintEvent*) {
  if (text_.isEmpty()) return;
  QPainter painter(this);
  const int flags = Qt::AlignLeft | Qt::TextWordWrap | Qt::TextShowMnemonic;
  const QRect box = fontMetrics().boundingRect(rect(), flags, text_);
  painter.fillRect(box.adjusted(0, 0, kClearance, 0), palette().window());
  style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), text_,
                        QPalette::WindowText);
}

LabelPeer::LabelPeer(Label& label, QWidget& parent, LayouterSource&)
    : LabelPeer(label, new LabelWidget(&parent)) {}

LabelPeer::LabelPeer(Label& label, LabelWidget* widget)
    : ControlPeer(label, *widget), label_(label), widget_(*widget) {}

void LabelPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Caption) widget_.Text(ToLines(label_.Caption()));
}

void LabelPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(label_, "Caption", widget_.Text() == ToLines(label_.Caption()));
}

}  // namespace lumenote
