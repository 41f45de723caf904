#include "backends/qt/peers/StatusBarPeer.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/DeviceLines.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"

namespace lumenote {

namespace {

constexpr int kGap = 2;
constexpr int kGripSide = 13;
constexpr float kLine = 0.25F;

}  // namespace

void StatusBarWidget::Panels(const QStringList& texts) {
  panels_ = texts;
  update();
}

void StatusBarWidget::Sign(StatusSign sign, const QString& tip) {
  sign_ = sign;
  signTip_ = tip;
  update();
}

QRect StatusBarWidget::SignBox() const {
  const int side = RoundToPixel(kSignTwips);
  return {width() - kGripSide - kGap - side, (height() + 1 - side) / 2, side, side};
}

bool StatusBarWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const bool onSign = SignBox().contains(help.pos());
  QToolTip::showText(help.globalPos(), onSign ? signTip_ : QString(), this, SignBox());
  return true;
}

void StatusBarWidget::resizeEvent(QResizeEvent*) {
  grip_.setGeometry(width() - kGripSide, height() - kGripSide, kGripSide, kGripSide);
}

void StatusBarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  DrawBorder(painter, {-1.0, 0.0, width() + 2.0, height() + 1.0}, Line());
  PaintPanels(painter);
  PaintSign(painter);
}

QColor StatusBarWidget::Line() const {
  return Mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), kLine);
}

// A text without room for all of it keeps its beginning and its end.
void StatusBarWidget::PaintPanels(QPainter& painter) const {
  painter.setPen(palette().color(QPalette::WindowText));
  const int end = SignBox().left() - kGap;
  const int padding = RoundToPixel(kPanelPadding);
  int left = kGap;
  for (const QString& text : panels_) {
    if (left >= end) break;
    const int wanted = std::max(RoundToPixel(kLeastPanelWidth),
                                fontMetrics().horizontalAdvance(text) + 2 * padding);
    const QRect panel(left, kGap + 1, std::min(wanted, end - left), height() - 2 * kGap - 1);
    const QRect inside = panel.adjusted(padding, 0, -padding, 0);
    DrawBorder(painter, panel, Line());
    const bool whole = panel.width() == wanted;  // in whole pixels the text may seem not to fit
    painter.drawText(
        inside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
        whole ? text : fontMetrics().elidedText(text, Qt::ElideMiddle, inside.width()));
    left = panel.right() + 1 + kGap;
  }
}

void StatusBarWidget::PaintSign(QPainter& painter) const {
  QPolygonF line;
  for (const Point& point : StrokeOf(sign_)) line << QPointF(point.x, point.y);
  const QColor ink = palette().color(QPalette::WindowText);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(SignBox().topLeft());
  painter.setPen(QPen(Mixed(ink, palette().color(QPalette::Window), PalenessOf(sign_)), kSignStroke,
                      Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(line);
}

StatusBarPeer::StatusBarPeer(StatusBar& bar, QWidget& parent, LayouterSource&)
    : StatusBarPeer(bar, new StatusBarWidget(&parent)) {}

StatusBarPeer::StatusBarPeer(StatusBar& bar, StatusBarWidget* widget)
    : ControlPeer(bar, *widget), bar_(bar), widget_(*widget) {}

QStringList StatusBarPeer::Texts() const {
  QStringList texts;
  for (const std::u16string& text : bar_.ShownPanels()) texts.push_back(ToQString(text));
  return texts;
}

void StatusBarPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Panels) widget_.Panels(Texts());
  if (property == Property::Sign) widget_.Sign(bar_.Sign(), ToQString(bar_.SignTip()));
  ShowName();
}

void StatusBarPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(bar_, "Panels", widget_.Panels() == Texts());
  differences.Check(
      bar_, "Sign",
      widget_.Sign() == bar_.Sign() && widget_.SignTip() == ToQString(bar_.SignTip()));
}

}  // namespace lumenote
