#include "backends/qt/peers/FramePeer.h"

#include <QChildEvent>
#include <QPainter>
#include <algorithm>

#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/DeviceLines.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/toolkit/Units.h"

namespace lumenote {

namespace {
constexpr int kBorder = 2;
constexpr float kRelief = 0.35F;
}  // namespace

void FrameWidget::Title(const QString& text) {
  title_ = text;
  update();
}

void FrameWidget::Clip(QWidget& child) const {
  const int room = width() - kBorder - child.x();
  if (child.width() > room)
    child.setMask(QRect(0, 0, std::max(0, room), child.height()));
  else
    child.clearMask();
}

void FrameWidget::resizeEvent(QResizeEvent*) {
  for (QWidget* child : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) Clip(*child);
}

void FrameWidget::childEvent(QChildEvent* event) {
  if (event->added()) event->child()->installEventFilter(this);
}

bool FrameWidget::eventFilter(QObject* object, QEvent* event) {
  const bool placed = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (auto* child = qobject_cast<QWidget*>(object); child && placed) Clip(*child);
  return false;
}

void FrameWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor ground = palette().color(QPalette::Window);
  const QFontMetrics metrics = fontMetrics();
  const int lineY = metrics.height() / 2;
  const int gap = RoundToPixel(kTitleGap);
  const QRect titleBox(RoundToPixel(kTitleLeft), 0,
                       metrics.size(Qt::TextShowMnemonic, title_).width(), metrics.height());
  if (!title_.isEmpty()) {
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(titleBox, Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, title_);
    painter.setClipRegion(QRegion(rect()) - titleBox.adjusted(-gap, 0, gap, 0));
  }
  const QRectF line(0, lineY, width() - 1, height() - lineY - 1);
  DrawBorder(painter, line.translated(1, 1), Mixed(ground, Qt::white, kRelief));
  DrawBorder(painter, line, Mixed(ground, Qt::black, kRelief));
}

FramePeer::FramePeer(Frame& frame, QWidget& parent, LayouterSource&)
    : FramePeer(frame, new FrameWidget(&parent)) {}

FramePeer::FramePeer(Frame& frame, FrameWidget* widget)
    : ControlPeer(frame, *widget), frame_(frame), widget_(*widget) {}

void FramePeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property == Property::Caption) widget_.Title(ToQString(frame_.Caption()));
}

void FramePeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(frame_, "Caption", widget_.Title() == ToQString(frame_.Caption()));
}

}  // namespace lumenote
