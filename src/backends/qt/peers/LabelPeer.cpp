#include "backends/qt/peers/LabelPeer.h"

#include <QCursor>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/DeviceLines.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"
#include "forms/controls/labels/Frame.h"

namespace lumenote {

namespace {
constexpr float kLine = 0.25F;
constexpr float kTint = 0.5F;
}  // namespace

void LabelWidget::Text(const QString& text) {
  text_ = text;
  update();
}

void LabelWidget::Style(LabelStyle style) {
  style_ = style;
  if (style != LabelStyle::Strip) return;
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);  // repaints it as the pointer comes and goes
}

void LabelWidget::paintEvent(QPaintEvent*) {
  if (style_ == LabelStyle::Cell) return PaintCell();
  if (style_ == LabelStyle::Title) return PaintTitle();
  if (style_ == LabelStyle::Strip) return PaintStrip();
  if (text_.isEmpty()) return;
  QPainter painter(this);
  const int flags = Qt::AlignLeft | Qt::TextWordWrap | Qt::TextShowMnemonic;
  style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), text_,
                        QPalette::WindowText);
}

void LabelWidget::PaintCell() {
  QPainter painter(this);
  const QPalette& colours = palette();
  painter.fillRect(rect(), colours.base());
  DrawBorder(painter, rect(),
             Mixed(colours.color(QPalette::Base), colours.color(QPalette::Text), kLine));
  painter.setPen(colours.color(QPalette::Text));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text_);
}

void LabelWidget::PaintTitle() {
  if (text_.isEmpty()) return;
  QPainter painter(this);
  const int gap = RoundToPixel(kTitleGap);
  const QRect box = rect().adjusted(0, 0, -gap, 0);
  const int textWidth = fontMetrics().horizontalAdvance(text_);
  const int left = box.right() + 1 - textWidth - gap;
  painter.fillRect(left, 0, width() - left, height(), palette().window());
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(box, Qt::AlignRight | Qt::AlignTop | Qt::TextSingleLine, text_);
}

void LabelWidget::PaintStrip() {
  if (!underMouse()) return;
  const QPalette& colours = palette();
  const QColor tint =
      Mixed(colours.color(QPalette::Window), colours.color(QPalette::Highlight), kTint);
  QPainter(this).fillRect(rect(), tint);
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
  if (property == Property::ToolTip) ShowToolTip();
}

// A tooltip that is shown already follows the pointer over the label.
void LabelPeer::ShowToolTip() {
  const QString text = ToQString(label_.ToolTip());
  widget_.setToolTip(text);
  if (QToolTip::isVisible() && widget_.underMouse())
    QToolTip::showText(QCursor::pos(), text, &widget_);
}

void LabelPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(label_, "Caption", widget_.Text() == ToLines(label_.Caption()));
  differences.Check(label_, "ToolTip", widget_.toolTip() == ToQString(label_.ToolTip()));
}

}  // namespace lumenote
