#include "document/undo/UndoLog.h"

namespace lumenote {

void UndoLog::Clear() {
  steps_.clear();
  edits_.clear();
  removed_.Clear();
}

void UndoLog::Start(const UndoStep& step) { steps_.push_back({step, edits_.size()}); }

void UndoLog::Push(const UndoEdit& edit, const LeafList& removed) {
  if (StepHasEdits() && edit.removed == 0 && !edit.mark) {
    UndoEdit& last = edits_.back();
    if (edit.at == last.at + last.inserted) {
      last.inserted += edit.inserted;
      return;
    }
  }
  MakeRoom(edits_, 1);
  removed_.Push(removed);
  edits_.push_back(edit);
}

UndoLog::Taken UndoLog::Take() {
  assert(StepHasEdits());
  const UndoEdit edit = edits_.back();
  Taken taken{edit, {removed_.Pop(edit.removed), edit.mark}};
  edits_.pop_back();
  return taken;
}

}  // namespace lumenote
