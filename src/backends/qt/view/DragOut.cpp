#include "backends/qt/view/DragOut.h"

#include <QPainter>

#include "backends/qt/text/FontNames.h"
#include "backends/qt/toolkit/QtText.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/SelectionMime.h"
#include "view/layout/ShownText.h"

namespace lumenote {

namespace {

constexpr QPoint kBesidePointer(-12, -12);

/// A line of the text, to hang beside the pointer.
QPixmap PictureOf(QString text, const QWidget& over) {
  constexpr int kWidest = 240;
  constexpr int kEdge = 4;
  constexpr qreal kOpacity = 0.85;
  const QFontMetrics metrics(ControlFont());
  text.replace(QChar::ObjectReplacementCharacter, QChar(kShownObject));
  const QString line = metrics.elidedText(text.simplified(), Qt::ElideRight, kWidest);
  const QSize size(metrics.horizontalAdvance(line) + 2 * kEdge, metrics.height() + 2 * kEdge);
  QPixmap picture(size * over.devicePixelRatioF());
  picture.setDevicePixelRatio(over.devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setOpacity(kOpacity);
  painter.setFont(ControlFont());
  painter.setBrush(over.palette().color(QPalette::ToolTipBase));
  painter.setPen(over.palette().color(QPalette::ToolTipText));
  painter.drawRect(QRect({}, size).adjusted(0, 0, -1, -1));
  painter.drawText(QRect({}, size), Qt::AlignCenter | Qt::TextSingleLine, line);
  return picture;
}

}  // namespace

void DragOut::Run() {
  const QPointer<RichTextView> view = &view_;
  const TextDrag text(view_.Text());
  const QPointer<QDrag> drag = new QDrag(&view_);
  drag->setMimeData(new SelectionMime(view_, text));
  drag->setPixmap(PictureOf(ToQString(text.Text().Beginning()), view_));
  drag->setHotSpot(kBesidePointer);
  const Qt::DropActions actions =
      view_.IsLocked() ? Qt::CopyAction : Qt::CopyAction | Qt::MoveAction;
  receipt_ = std::make_unique<DropReceipt>();
  const Qt::DropAction done = drag->exec(actions, Qt::MoveAction);
  if (view && drag && done == Qt::MoveAction) Finish(*drag, text);
}

// Qt keeps the drag alive until the other program has acknowledged the drop.
void DragOut::Finish(QDrag& drag, TextDrag text) {
  const QObject* target = drag.target();
  if (target == view_.viewport() || target == &view_) return;
  if (target) return text.Moved();
  QObject::connect(&drag, &QObject::destroyed, &view_, [this, text]() mutable {
    if (receipt_->IsMove()) text.Moved();
  });
}

}  // namespace lumenote
