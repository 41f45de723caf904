// What a view requires of the window that shows it; realised by each backend, besides a layouter.
#pragma once
#include <functional>
#include <string_view>

#include "view/pane/ViewDamage.h"

namespace lumenote {

struct PointerManners {
  double dragDistance = 10;      // pixels a pressed mouse moves before a drag begins
  double doubleClickTime = 400;  // milliseconds
};

enum class PointerShape { Text, Arrow, Hand };

/// Points are pixels from the pane's upper left corner. The view calls these during its events;
/// only `Act` and `OpenMenu` may lead to further user input.
class ViewHost {
 public:
  virtual ~ViewHost() = default;

  /// Executes user input as an event of the window. That may close the window and detach the view,
  /// but the view object must still exist on return.
  virtual void Act(const std::function<void()>& act) = 0;
  /// Whether user edits are blocked.
  virtual bool IsLocked() const = 0;
  /// Whether Tab goes to the next control instead of being typed.
  virtual bool TabLeaves() const = 0;
  /// Whether the key for it opens the popup of a misspelt word.
  virtual bool ChecksSpelling() const { return false; }
  virtual PointerManners Pointer() const = 0;

  /// Requests a call of `NoteView::Settle` soon, before the next paint.
  virtual void SettleSoon() = 0;
  /// Requests a call of `NoteView::WorkIdly` when the user has been idle for a moment.
  virtual void IdleSoon() = 0;
  /// Updates the scroll bars from the pane. May resize the pane.
  virtual void ShowScrolling() = 0;
  /// Updates the screen; ends each `Settle`, possibly without damage.
  virtual void ShowDamage(const Damage& damage) = 0;

  /// Called immediately, for assistive programs: the document has changed.
  virtual void Changed(const DocumentChange& change) = 0;
  /// Selection or caret have moved since the last call: for input methods, assistive programs, and
  /// to restart the blinking.
  virtual void SelectionMoved() = 0;

  /// The view types what is being composed: the input method forgets it.
  virtual void DropComposition() = 0;

  /// The pointer over the text: an arrow over draggable text, a hand over a link while Ctrl is
  /// held.
  virtual void ShowPointer(PointerShape shape) = 0;
  /// While on, `ViewMouse::ScrollOn` must be called about every 30 milliseconds.
  virtual void ScrollTimer(bool on) = 0;
  /// Drags the selection, a `TextDrag`, until the button is released; the view may be destroyed
  /// meanwhile.
  virtual void Drag() = 0;
  /// Opens the target of a link, unless it is none to open.
  virtual void OpenLink(std::u16string_view address) = 0;
  /// Acts like releasing the right button there.
  virtual void OpenMenu(PixelPoint at) = 0;
  /// Opens the popup of the word at the caret, if that is misspelt.
  virtual void OpenSpelling() {}
};

}  // namespace lumenote
