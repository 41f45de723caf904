#include "backends/qt/peers/StatusBarPeer.h"

#include <QPainter>

#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {
constexpr int kPadding = 5;
constexpr int kGap = 2;
constexpr int kLeastWidth = 24;
}  // namespace

void StatusBarWidget::Panels(const QStringList& texts) {
  panels_ = texts;
  update();
}

void StatusBarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor ground = palette().color(QPalette::Window);
  painter.fillRect(rect(), ground);
  painter.fillRect(0, 0, width(), 1, ground.darker(125));
  int left = kGap;
  for (const QString& text : panels_) {
    const int textWidth = fontMetrics().horizontalAdvance(text);
    const QRect panel(left, kGap + 1, std::max(kLeastWidth, textWidth + 2 * kPadding),
                      height() - 2 * kGap - 1);
    painter.setPen(ground.darker(125));
    painter.drawRect(panel.adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(panel.adjusted(kPadding, 0, -kPadding, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text);
    left = panel.right() + 1 + kGap;
  }
}

StatusBarPeer::StatusBarPeer(StatusBar& bar, QWidget& parent, LayouterSource&)
    : StatusBarPeer(bar, new StatusBarWidget(&parent)) {}

StatusBarPeer::StatusBarPeer(StatusBar& bar, StatusBarWidget* widget)
    : ControlPeer(bar, *widget), bar_(bar), widget_(*widget) {}

QStringList StatusBarPeer::Texts() const {
  QStringList texts;
  for (int number = 1; number <= bar_.Count(); ++number)
    texts.push_back(ToQString(bar_.Panel(number)));
  return texts;
}

void StatusBarPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Panels) widget_.Panels(Texts());
}

void StatusBarPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(bar_, "Panels", widget_.Panels() == Texts());
}

}  // namespace lumenote
