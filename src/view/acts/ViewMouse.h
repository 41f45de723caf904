// Selecting with the mouse, and the beginning of a drag.
#pragma once
#include <cstdint>
#include <optional>

#include "view/pane/NoteView.h"

namespace lumenote {

/// A click sets the caret, a double click selects a word, a triple click a paragraph; moving on
/// extends the selection by the same unit, and scrolls when the mouse leaves the view. Points are
/// pixels of the pane. After any of these the view may be detached.
class ViewMouse {
 public:
  explicit ViewMouse(NoteView& view) : view_(view) {}

  struct Press {
    PixelPoint at;
    std::int64_t time = 0;  // milliseconds on any clock that only goes on
    bool extend = false;    // with Shift
  };
  /// The left button goes down; once more, soon after and nearly there, it is a double click.
  void Down(const Press& press);
  void DoubleClick(const Press& press);
  /// The mouse moves, with the left button held or not.
  void Move(PixelPoint at, bool held);
  /// The left button goes up.
  void Up(PixelPoint at);
  /// Another button goes up, or the window takes the mouse away.
  void Cancel();
  /// The host's scroll timer ticks.
  void ScrollOn();

 private:
  enum class Unit { Character, Word, Paragraph };
  enum class State { Idle, Selecting, MayDrag };

  void Begin(Unit unit, Position position, bool extend);
  void ExtendTo(Position position);
  Selection Around(Position position) const;
  bool InSelection(PixelPoint point) const;
  bool MayBeginDrag() const;

  NoteView& view_;
  State state_ = State::Idle;
  Unit unit_ = Unit::Character;
  Selection origin_;  // where selecting began: a caret, a word, a paragraph
  PixelPoint pressed_;
  PixelPoint last_;
  std::optional<std::int64_t> doubleClick_;  // when
  bool scrolling_ = false;
};

}  // namespace lumenote
