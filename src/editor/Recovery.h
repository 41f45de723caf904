// The recovery copy of the note that a window edits.
#pragma once
#include <memory>

#include "platform/RichTextSurface.h"
#include "platform/StateFolder.h"
#include "session/EditorWindow.h"

namespace lumenote {

class Timer;

/// While the note is dirty its copy in the state folder is at most ten seconds old. It is written
/// in slices between the user's acts, from the content as it was when the first one began; nothing
/// runs while the copy is up to date. A copy that cannot be written is tried again.
class Recovery {
 public:
  /// Both outlive this object; the timer is its own.
  Recovery(EditorWindow& editor, Timer& clock);
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;
  /// Unless it was dropped the copy stays, for the next start.
  ~Recovery();

  /// The note has been edited.
  void Edited();
  /// Nothing of the note needs a copy any more.
  void Drop();
  /// Brings the copy of a note that is stored nowhere else up to date at once.
  void WriteNow();

 private:
  void Tick();
  void Begin();
  void WriteSlice();
  void Commit();
  /// Arms the timer for what comes next, if anything does.
  void Schedule();

  EditorWindow& editor_;
  Timer& clock_;
  std::unique_ptr<NoteCopy> copy_;
  std::unique_ptr<SnapshotWriter> writing_;  // null between copies
  bool due_ = false;                         // edited since the last copy began
};

}  // namespace lumenote
