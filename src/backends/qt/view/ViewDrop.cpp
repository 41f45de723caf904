#include "backends/qt/view/ViewDrop.h"

#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/SelectionMime.h"

namespace lumenote {

namespace {
constexpr double kEdge = 12;  // pixels
}

bool ViewDrop::Accepts(const QDropEvent& event) const {
  return !view_.IsLocked() && event.mimeData() && HasMimeContent(*event.mimeData());
}

bool ViewDrop::IsOwn(const QDropEvent& event) const {
  const auto* selection = dynamic_cast<const SelectionMime*>(event.mimeData());
  return selection && selection->Source() == &view_;
}

void ViewDrop::Move(QDropEvent& event) {
  event.setAccepted(Accepts(event));
  if (!event.isAccepted()) return;
  const bool copy = event.modifiers() & Qt::ControlModifier;
  event.setDropAction(IsOwn(event) && !copy ? Qt::MoveAction : event.proposedAction());
  ScrollNearEdge(event.position().y());
  view_.DropCaret(view_.Pane().PositionAt(event.position()));
}

void ViewDrop::ScrollNearEdge(double y) {
  const double below = y - (view_.Pane().Size().height() - kEdge);
  if (y < kEdge)
    view_.ScrollBy(y - kEdge);
  else if (below > 0)
    view_.ScrollBy(below);
}

void ViewDrop::Leave() { view_.DropCaret(std::nullopt); }

void ViewDrop::Drop(QDropEvent& event) {
  Leave();
  event.setAccepted(Accepts(event));
  if (!event.isAccepted()) return;
  const Position target = view_.Pane().PositionAt(event.position());
  const bool copy = event.modifiers() & Qt::ControlModifier;
  if (IsOwn(event)) {
    event.setDropAction(copy ? Qt::CopyAction : Qt::MoveAction);
    view_.Act([&] { view_.Surface().UserDrop(target, copy); });
  } else {
    const ClipboardContent content = ReadMime(*event.mimeData());
    const int edits = view_.Edits();
    view_.Act([&] { view_.Surface().UserDropContent(content, target); });
    event.setAccepted(view_.Edits() != edits);
  }
}

}  // namespace lumenote
