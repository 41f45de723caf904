#include "document/UndoLog.h"

#include <utility>

namespace lumenote {

void UndoLog::Clear() {
  steps_.clear();
  edits_.clear();
  removed_.Clear();
}

void UndoLog::Start(const UndoStep& step) { steps_.push_back({step, edits_.size()}); }

void UndoLog::Push(const UndoEdit& edit, LeafList removed) {
  if (StepHasEdits() && edit.removed == 0 && !edit.mark) {
    UndoEdit& last = edits_.back();
    if (edit.at == last.at + last.inserted) {
      last.inserted += edit.inserted;
      return;
    }
  }
  edits_.push_back(edit);
  removed_.Push(std::move(removed));
}

std::optional<UndoLog::Taken> UndoLog::Take() {
  if (!StepHasEdits()) return std::nullopt;
  const UndoEdit edit = edits_.back();
  edits_.pop_back();
  return Taken{edit, {removed_.Pop(edit.removed), edit.mark}};
}

}  // namespace lumenote
