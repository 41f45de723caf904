#include "view/acts/ViewDrop.h"

namespace lumenote {

namespace {
constexpr double kEdge = 12;  // pixels
}

void ViewDrop::Move(PixelPoint at) {
  const double below = at.y - (view_.Pane().Size().height - kEdge);
  if (at.y < kEdge)
    view_.ScrollBy(at.y - kEdge);
  else if (below > 0)
    view_.ScrollBy(below);
  view_.DropCaret(view_.Pane().PositionAt(at));
}

bool ViewDrop::Drop(PixelPoint at, const ClipboardContent& content) {
  const Position target = view_.Pane().PositionAt(at);
  const int edits = view_.Edits();
  view_.Act([&] { view_.Surface().UserDropContent(content, target); });
  return view_.Edits() != edits;
}

void ViewDrop::DropOwn(PixelPoint at, bool copy) {
  const Position target = view_.Pane().PositionAt(at);
  view_.Act([&] { view_.Surface().UserDrop(target, copy); });
}

void ViewDrop::DropBack(PixelPoint at, TextDrag& drag, bool copy) {
  if (drag.Reselect())
    DropOwn(at, copy);
  else if (view_.IsAttached() && !view_.IsLocked())
    Drop(at, drag.Text().Content());
}

void ViewDrop::Paste(PixelPoint at, const ClipboardContent& content) {
  const Position target = view_.Pane().PositionAt(at);
  view_.Act([&] {
    DocumentSurface& surface = view_.Surface();
    surface.UserDropContent(content, target);
    surface.UserSelect(surface.Selected().end, surface.Selected().end);
  });
}

}  // namespace lumenote
