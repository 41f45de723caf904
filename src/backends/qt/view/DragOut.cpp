#include "backends/qt/view/DragOut.h"

#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/SelectionMime.h"

namespace lumenote {

void DragOut::Run() {
  const QPointer<RichTextView> view = &view_;
  const TextDrag text(view_.Text());
  const QPointer<QDrag> drag = new QDrag(&view_);
  drag->setMimeData(new SelectionMime(view_, text));
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
