#include "backends/qt/view/ViewMouse.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <algorithm>

#include "backends/qt/toolkit/MimeContent.h"
#include "backends/qt/toolkit/MouseButtons.h"
#include "backends/qt/view/RichTextView.h"
#include "surface/keys/Words.h"

namespace lumenote {

namespace {

constexpr int kScrollInterval = 30;  // milliseconds

bool IsFar(QPoint from, QPoint to) {
  return (to - from).manhattanLength() >= QApplication::startDragDistance();
}

}  // namespace

Position ViewMouse::PositionAt(QPointF point) const { return view_.Pane().PositionAt(point); }

bool ViewMouse::InSelection(QPointF point) const {
  const Selection selection = view_.Surface().Selected();
  if (selection.Length() == 0) return false;
  const Position character = view_.Pane().CharacterAt(point);
  return character >= selection.start && character < selection.end;
}

Selection ViewMouse::Around(Position position) const {
  const Document& document = view_.Surface().Content();
  if (unit_ == Unit::Word) return WordAt(document, position);
  if (unit_ == Unit::Character) return {position, position};
  const Position paragraph = document.ParagraphOf(position);
  return {document.ParagraphStart(paragraph),
          std::min(document.ParagraphEnd(paragraph) + 2, document.Length())};
}

void ViewMouse::Begin(Unit unit, Position position, bool extend) {
  state_ = State::Selecting;
  unit_ = unit;
  const Position anchor = view_.Surface().Anchor();
  origin_ = extend ? Selection{anchor, anchor} : Around(position);
  ExtendTo(position);
}

void ViewMouse::ExtendTo(Position position) {
  const Selection here = Around(position);
  const bool backwards = position < origin_.start;
  const Position anchor = backwards ? origin_.end : origin_.start;
  const Position caret = backwards ? here.start : std::max(here.end, origin_.end);
  view_.Act([&] { view_.Surface().UserSelect(anchor, caret); });
}

void ViewMouse::Press(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton) PressLeft(event);
  if (event.button() == Qt::MiddleButton) PasteSelection(event);
}

void ViewMouse::PressLeft(const QMouseEvent& event) {
  pressed_ = event.position().toPoint();
  last_ = event.position();
  const Position position = PositionAt(last_);
  const bool extend = event.modifiers() & Qt::ShiftModifier;
  const bool third = sinceDoubleClick_.isValid() &&
                     sinceDoubleClick_.elapsed() < QApplication::doubleClickInterval();
  sinceDoubleClick_.invalidate();
  if (third)
    Begin(Unit::Paragraph, position, false);
  else if (!extend && InSelection(last_))
    state_ = State::MayDrag;
  else
    Begin(Unit::Character, position, extend);
}

void ViewMouse::DoubleClick(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return Press(event);
  last_ = event.position();
  sinceDoubleClick_.start();
  Begin(Unit::Word, PositionAt(last_), false);
}

void ViewMouse::Move(const QMouseEvent& event) {
  last_ = event.position();
  if (!(event.buttons() & Qt::LeftButton)) return ShowShape(last_);
  if (state_ == State::MayDrag && IsFar(pressed_, last_.toPoint())) {
    state_ = State::Idle;
    return drag_.Run();
  }
  if (state_ != State::Selecting) return;
  const bool outside = last_.y() < 0 || last_.y() > view_.Pane().Size().height();
  if (outside && !scrolling_.isActive()) scrolling_.start(kScrollInterval, &view_);
  if (!outside) scrolling_.stop();
  ExtendTo(PositionAt(last_));
}

// The further outside the mouse is, the faster.
void ViewMouse::ScrollOn() {
  const double height = view_.Pane().Size().height();
  const double beyond = last_.y() < 0 ? last_.y() : std::max(0.0, last_.y() - height);
  if (state_ != State::Selecting || beyond == 0) return scrolling_.stop();
  view_.ScrollBy(beyond);
  ExtendTo(PositionAt({last_.x(), std::clamp(last_.y(), 0.0, height - 1)}));
}

void ViewMouse::Release(const QMouseEvent& event) {
  scrolling_.stop();
  if (event.button() == Qt::LeftButton && state_ == State::MayDrag)
    Begin(Unit::Character, PositionAt(event.position()), false);
  state_ = State::Idle;
  if (!view_.IsAttached()) return;
  view_.ReleaseMouse(ButtonOf(event.button()), event.position());
}

void ViewMouse::ShowShape(QPointF at) {
  view_.viewport()->setCursor(InSelection(at) ? Qt::ArrowCursor : Qt::IBeamCursor);
}

// What is selected elsewhere on the desktop is pasted at the mouse.
void ViewMouse::PasteSelection(const QMouseEvent& event) {
  QClipboard* clipboard = QApplication::clipboard();
  if (view_.IsLocked() || !clipboard->supportsSelection()) return;
  const QMimeData* data = clipboard->mimeData(QClipboard::Selection);
  if (!data || !HasMimeContent(*data)) return;
  const ClipboardContent content = ReadMime(*data);
  const Position target = PositionAt(event.position());
  view_.Act([&] {
    view_.Surface().UserDropContent(content, target);
    const Position end = view_.Surface().Selected().end;
    view_.Surface().UserSelect(end, end);
  });
}

}  // namespace lumenote
