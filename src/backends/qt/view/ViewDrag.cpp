#include "backends/qt/view/ViewDrag.h"

#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/SelectionMime.h"

namespace lumenote {

void ViewDrag::Run() {
  const QPointer<RichTextView> view = &view_;
  const Selection range = view_.Surface().Selected();
  const int edits = view_.Edits();
  const QPointer<QDrag> drag = new QDrag(&view_);
  drag->setMimeData(new SelectionMime(view_, SelectionMime::Of::Now));
  const Qt::DropActions actions =
      view_.IsLocked() ? Qt::CopyAction : Qt::CopyAction | Qt::MoveAction;
  receipt_ = std::make_unique<DropReceipt>();
  const Qt::DropAction done = drag->exec(actions, Qt::MoveAction);
  if (view && drag && done == Qt::MoveAction) Finish(*drag, range, edits);
}

// The toolkit keeps the drag until the other program has told it that it is done.
void ViewDrag::Finish(QDrag& drag, Selection range, int edits) {
  const QObject* target = drag.target();
  if (target == view_.viewport() || target == &view_) return;
  if (target) return Moved(range, edits);
  QObject::connect(&drag, &QObject::destroyed, &view_, [this, range, edits] {
    if (receipt_->IsMove()) Moved(range, edits);
  });
}

void ViewDrag::Moved(Selection range, int edits) {
  if (!view_.IsAttached() || view_.IsLocked() || view_.Edits() != edits) return;
  view_.Act([&] {
    view_.Surface().UserSelect(range.start, range.end);
    view_.Surface().Clear();
  });
}

}  // namespace lumenote
