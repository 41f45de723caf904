// What a view asks of the window that shows it: what every backend realises, besides a layouter.
#pragma once
#include <functional>

#include "view/pane/ViewDamage.h"

namespace lumenote {

struct PointerManners {
  double dragDistance = 10;      // pixels that a pressed mouse moves before a drag begins
  double doubleClickTime = 400;  // milliseconds
};

/// Points are pixels from the pane's upper left corner. The view calls these between its events;
/// none but `Act` and `OpenMenu` may bring the next act of the user.
class ViewHost {
 public:
  virtual ~ViewHost() = default;

  /// Runs an act of the user as an event of the window. The act may close the window and detach
  /// the view; the view object is still there when this returns.
  virtual void Act(const std::function<void()>& act) = 0;
  /// Whether the user may not edit.
  virtual bool IsLocked() const = 0;
  virtual PointerManners Pointer() const = 0;

  /// `NoteView::Settle` is to be called before the next painting, and soon.
  virtual void SettleSoon() = 0;
  /// The scroll bars are to show what the pane says. May resize the pane.
  virtual void ShowScrolling() = 0;
  /// The screen is to show the pane; ends each `Settle`, perhaps without any damage.
  virtual void ShowDamage(const Damage& damage) = 0;

  /// At once, for assistive programs: the document has changed.
  virtual void Changed(const DocumentChange& change) = 0;
  /// Selection or caret have moved since this was called last; for input methods, assistive
  /// programs and the blinking, which starts anew.
  virtual void SelectionMoved() = 0;

  /// The pointer over the text: an arrow where it could be dragged, else the text pointer.
  virtual void ShowArrow(bool arrow) = 0;
  /// While `on`, `ViewMouse::ScrollOn` is to be called every 30 milliseconds or so.
  virtual void ScrollTimer(bool on) = 0;
  /// Drags the selection, a `TextDrag`, until the button is released; the view may be gone then.
  virtual void Drag() = 0;
  /// As the right button does when it is released there.
  virtual void OpenMenu(PixelPoint at) = 0;
};

}  // namespace lumenote
