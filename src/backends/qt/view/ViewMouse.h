// Selecting with the mouse, and the beginning of a drag.
#pragma once
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPoint>

#include "backends/qt/view/ViewDrag.h"
#include "base/Position.h"

namespace lumenote {

class RichTextView;

/// A click sets the caret, a double click selects a word, a triple click a paragraph; moving on
/// extends the selection by the same unit, and scrolls when the mouse leaves the view.
class ViewMouse {
 public:
  explicit ViewMouse(RichTextView& view) : view_(view), drag_(view) {}

  void Press(const QMouseEvent& event);
  void Move(const QMouseEvent& event);
  void Release(const QMouseEvent& event);
  void DoubleClick(const QMouseEvent& event);
  bool IsTimer(int id) const { return scrolling_.timerId() == id; }
  void ScrollOn();

 private:
  enum class Unit { Character, Word, Paragraph };
  enum class State { Idle, Selecting, MayDrag };

  void PressLeft(const QMouseEvent& event);
  void PasteSelection(const QMouseEvent& event);
  void Begin(Unit unit, Position position, bool extend);
  void ExtendTo(Position position);
  void ShowShape(QPointF at);
  Selection Around(Position position) const;
  Position PositionAt(QPointF point) const;
  bool InSelection(QPointF point) const;

  RichTextView& view_;
  State state_ = State::Idle;
  Unit unit_ = Unit::Character;
  Selection origin_;  // where selecting began: a caret, a word, a paragraph
  QPoint pressed_;
  QPointF last_;
  QElapsedTimer sinceDoubleClick_;
  QBasicTimer scrolling_;
  ViewDrag drag_;
};

}  // namespace lumenote
