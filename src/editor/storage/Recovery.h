// The recovery copy of a window's note.
#pragma once
#include <memory>

#include "platform/RichTextSurface.h"
#include "platform/StateFolder.h"
#include "session/EditorWindow.h"

namespace lumenote {

class Timer;

/// While the note is dirty, its copy in the state folder is at most ten seconds old. The copy is a
/// snapshot, written in slices between events; nothing runs while it is up to date. A failed copy
/// is retried.
class Recovery {
 public:
  /// Both must outlive this object; no one else uses the timer.
  Recovery(EditorWindow& editor, Timer& clock);
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;
  /// Unless dropped, the copy stays for the next start.
  ~Recovery();

  /// Must be called when the note has been edited.
  void Edited();
  /// Deletes the copy: the note needs none any more.
  void Drop();
  /// Brings the copy of an unsaved note up to date at once.
  void WriteNow();

 private:
  void Tick();
  void Begin();
  void WriteSlice();
  void Commit();
  /// Arms the timer for the next task, if any.
  void Schedule();

  EditorWindow& editor_;
  Timer& clock_;
  std::unique_ptr<NoteCopy> copy_;
  std::unique_ptr<SnapshotWriter> writer_;  // null between copies
  bool due_ = false;                        // edited since the last copy was started
};

}  // namespace lumenote
