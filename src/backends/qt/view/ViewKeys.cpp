#include "backends/qt/view/ViewKeys.h"

#include "backends/qt/toolkit/Keys.h"
#include "backends/qt/view/RichTextView.h"

namespace lumenote {

namespace {
constexpr double kZoomStep = 1.1;
}

bool ViewKeys::Press(const QKeyEvent& event) {
  return Zoom(event) || OpenMenu(event) || Edit(event);
}

bool ViewKeys::Edit(const QKeyEvent& event) {
  if (const QString text = TypedText(event); !text.isEmpty()) {
    const bool used = !view_.IsLocked();
    view_.Type(text);
    return used;
  }
  const auto key = StrokeOf(event);
  if (!key || (view_.IsLocked() && !OnlyLooks(*key))) return false;
  bool used = false;
  view_.Act([&] { used = view_.Surface().UserKey(*key); });
  return used;
}

bool ViewKeys::Zoom(const QKeyEvent& event) {
  if (!(event.modifiers() & Qt::ControlModifier)) return false;
  const double zoom = view_.Pane().Zoom();
  switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      view_.Zoom(zoom * kZoomStep);
      return true;
    case Qt::Key_Minus:
      view_.Zoom(zoom / kZoomStep);
      return true;
    case Qt::Key_0:
      view_.Zoom(1);
      return true;
    default:
      return false;
  }
}

// The keys for the context menu act as the right button at the caret.
bool ViewKeys::OpenMenu(const QKeyEvent& event) {
  const bool shiftF10 = event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
  if (event.key() != Qt::Key_Menu && !shiftF10) return false;
  const Position caret = view_.Surface().Caret();
  view_.Pane().Reveal(caret);
  view_.Settle();
  const QRectF box = view_.Pane().CaretAt(caret).value_or(QRectF());
  view_.ReleaseMouse(MouseButton::Right, box.bottomLeft());
  return true;
}

}  // namespace lumenote
