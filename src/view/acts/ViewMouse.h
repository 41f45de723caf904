// Selects with the mouse and starts drags.
#pragma once
#include <cstdint>
#include <optional>
#include <string>

#include "view/pane/NoteView.h"

namespace lumenote {

/// A click sets the caret, a double click selects a word, a triple click a paragraph; dragging
/// extends the selection by that unit and scrolls when the mouse leaves the view; a click with Ctrl
/// and without Shift opens a link. Points are in pane pixels. Each member may detach the view.
class ViewMouse {
 public:
  explicit ViewMouse(NoteView& view) : view_(view) {}

  struct Press {
    PixelPoint at;
    std::int64_t time = 0;  // milliseconds on any monotonic clock
    bool extend = false;    // with Shift
  };
  /// The left button was pressed: types what is being composed where it is seen. Soon after a
  /// double click at the same place, this is the third click.
  void Down(const Press& press);
  /// Instead of `Down` for the second press of a double click, as the system counts them.
  void DoubleClick(const Press& press);
  /// The mouse moved; `held` tells whether the left button is down.
  void Move(PixelPoint at, bool held);
  /// Whether Ctrl is held; call before other members, and when the key goes down or up.
  void Control(bool held);
  /// The left button was released.
  void Up(PixelPoint at);
  /// Another button was released, or the window took the mouse away.
  void Cancel();
  /// The host's scroll timer has ticked.
  void ScrollOn();

 private:
  enum class Unit { Character, Word, Paragraph };
  enum class State { Idle, Selecting, MayDrag, MayOpen };

  void Begin(Unit unit, Position position, bool extend);
  void ExtendTo(Position position);
  Selection Around(Position position) const;
  bool InSelection(PixelPoint point) const;
  std::u16string LinkUnder(PixelPoint point) const;
  void OpenLink() const;
  void ShowPointer() const;
  bool IsThird(const Press& press) const;
  bool IsFar(PixelPoint one, PixelPoint other) const;

  NoteView& view_;
  State state_ = State::Idle;
  Unit unit_ = Unit::Character;
  Selection origin_;  // where the selection started: a caret, a word, a paragraph
  PixelPoint pressed_;
  PixelPoint last_;
  std::optional<Press> doubleClick_;
  bool scrolling_ = false;
  bool control_ = false;
};

}  // namespace lumenote
