// Drags text out of a window.
#pragma once
#include "view/acts/TextDrag.h"

namespace lumenote {

/// Text that another window has moved is deleted here; what the view drops on itself it moves.
class DragOut {
 public:
  /// Returns when the drag has ended; the view may be detached then.
  void Run(NoteView& view);
  bool IsRunning() const { return running_; }
  /// The view has moved or copied the text itself.
  void TakenBack() { takenBack_ = true; }

 private:
  bool running_ = false;
  bool takenBack_ = false;
};

}  // namespace lumenote
