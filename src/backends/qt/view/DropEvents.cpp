#include "backends/qt/view/DropEvents.h"

#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/SelectionMime.h"

namespace lumenote {

namespace {

bool IsCopy(const QDropEvent& event) { return event.modifiers() & Qt::ControlModifier; }

}  // namespace

DropEvents::DropEvents(RichTextView& view) : view_(view), rules_(view.Text()) {}

bool DropEvents::Accepts(const QDropEvent& event) const {
  return !view_.IsLocked() && event.mimeData() && HasMimeContent(*event.mimeData());
}

std::optional<TextDrag> DropEvents::Own(const QDropEvent& event) const {
  const auto* selection = dynamic_cast<const SelectionMime*>(event.mimeData());
  return selection ? selection->DragFrom(view_) : std::nullopt;
}

// A file that becomes a picture stays where it is.
Qt::DropAction DropEvents::ActionOf(const QDropEvent& event) const {
  if (Own(event)) return IsCopy(event) ? Qt::CopyAction : Qt::MoveAction;
  return event.mimeData()->hasUrls() ? Qt::CopyAction : event.proposedAction();
}

void DropEvents::Move(QDropEvent& event) {
  event.setAccepted(Accepts(event));
  if (!event.isAccepted()) return;
  event.setDropAction(ActionOf(event));
  rules_.Move(ToPoint(event.position()));
}

void DropEvents::Drop(QDropEvent& event) {
  rules_.Leave();
  event.setAccepted(Accepts(event));
  if (!event.isAccepted()) return;
  const PixelPoint at = ToPoint(event.position());
  event.setDropAction(ActionOf(event));
  if (std::optional<TextDrag> own = Own(event)) {
    rules_.DropBack(at, *own, IsCopy(event));
  } else {
    event.setAccepted(rules_.Drop(at, ReadMime(*event.mimeData())));
  }
}

}  // namespace lumenote
