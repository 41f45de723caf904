// Drags text out of a window.
#pragma once
#include "view/acts/TextDrag.h"
#include "view/acts/ViewDrop.h"

namespace lumenote {

/// Text that another window has moved is deleted here; what the view drops on itself it moves.
class DragOut {
 public:
  /// Returns when the drag has ended; the view may be detached then.
  void Run(NoteView& view);
  bool IsRunning() const { return dragged_ != nullptr; }
  /// Drops the dragged text on its own view.
  void DropBack(ViewDrop& rules, PixelPoint at, bool copy);

 private:
  TextDrag* dragged_ = nullptr;  // while running
  bool takenBack_ = false;
};

}  // namespace lumenote
