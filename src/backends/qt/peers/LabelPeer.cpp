#include "backends/qt/peers/LabelPeer.h"

#include <QPainter>
#include <QStyle>

#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {
constexpr int kClearance = 3;
constexpr float kLine = 0.25F;
}  // namespace

void LabelWidget::Text(const QString& text) {
  text_ = text;
  update();
}

void LabelWidget::paintEvent(QPaintEvent*) {
  if (style_ == LabelStyle::Cell) return PaintCell();
  if (text_.isEmpty()) return;
  QPainter painter(this);
  const int flags = Qt::AlignLeft | Qt::TextWordWrap | Qt::TextShowMnemonic;
  const QRect box = fontMetrics().boundingRect(rect(), flags, text_);
  painter.fillRect(box.adjusted(0, 0, kClearance, 0), palette().window());
  style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), text_,
                        QPalette::WindowText);
}

void LabelWidget::PaintCell() {
  QPainter painter(this);
  const QPalette& colours = palette();
  painter.fillRect(rect(), colours.base());
  painter.setPen(Mixed(colours.color(QPalette::Base), colours.color(QPalette::Text), kLine));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(colours.color(QPalette::Text));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text_);
}

LabelPeer::LabelPeer(Label& label, QWidget& parent, LayouterSource&)
    : LabelPeer(label, new LabelWidget(&parent)) {}

LabelPeer::LabelPeer(Label& label, LabelWidget* widget)
    : ControlPeer(label, *widget), label_(label), widget_(*widget) {
  widget_.Style(label.Style());
}

void LabelPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Caption) widget_.Text(ToLines(label_.Caption()));
}

void LabelPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(label_, "Caption", widget_.Text() == ToLines(label_.Caption()));
}

}  // namespace lumenote
