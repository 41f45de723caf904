#include "document/Undo.h"

#include <utility>

namespace lumenote {

void UndoHistory::Begin(UndoKind kind, Selection before) {
  if (depth_++ > 0) return;
  kind_ = kind;
  before_ = before;
  started_ = false;
  closing_ = false;
}

EditExtent UndoHistory::Apply(Position from, Position to, Fragment inserted) {
  const Selection range = document_.Outwards(from, to);
  const EditExtent edit{range.start, range.Length(), inserted.Length()};
  if (inserted.mark == document_.Mark()) inserted.mark.reset();
  if (edit.removed == 0 && edit.inserted == 0 && !inserted.mark) return edit;
  const bool closing = inserted.leaves.Breaks() > 0;
  Fragment removed = document_.Replace(range, std::move(inserted));
  const Position end = edit.at + edit.inserted;
  const bool alone = depth_ == 0;
  if (alone) Begin(UndoKind::Unknown, range);
  closing_ |= closing;
  Remember(edit, std::move(removed));
  if (alone) End({end, end});
  return edit;
}

void UndoHistory::End(Selection after) {
  if (depth_ == 0 || --depth_ > 0 || !started_) return;
  undo_.Last().after = after;
  open_ = kind_ == UndoKind::Delete || (kind_ == UndoKind::Typing && !closing_);
}

void UndoHistory::Clear() {
  undo_.Clear();
  redo_.Clear();
  open_ = false;
  started_ = false;
}

UndoKind UndoHistory::UndoType() const {
  return undo_.Empty() ? UndoKind::Unknown : undo_.Last().kind;
}

UndoKind UndoHistory::RedoType() const {
  return redo_.Empty() ? UndoKind::Unknown : redo_.Last().kind;
}

std::optional<Selection> UndoHistory::Undo(const EditVisitor& visit) {
  const auto step = Revert(undo_, redo_, visit);
  if (!step) return std::nullopt;
  return step->before;
}

std::optional<Selection> UndoHistory::Redo(const EditVisitor& visit) {
  const auto step = Revert(redo_, undo_, visit);
  if (!step) return std::nullopt;
  return step->after;
}

void UndoHistory::Remember(const EditExtent& edit, Fragment removed) {
  if (!started_) StartStep(edit);
  undo_.Push({edit.at, edit.removed, edit.inserted, removed.mark}, std::move(removed.leaves));
}

void UndoHistory::StartStep(const EditExtent& edit) {
  started_ = true;
  redo_.Clear();
  if (Continues(edit)) return;
  if (!multiLevel_) undo_.Clear();
  undo_.Start({kind_, before_, before_});
}

bool UndoHistory::Continues(const EditExtent& edit) const {
  if (!open_ || undo_.Empty() || undo_.Last().kind != kind_) return false;
  const UndoEdit& last = undo_.LastEdit();
  if (kind_ == UndoKind::Typing) return edit.at == last.at + last.inserted;
  return edit.inserted == 0 && (edit.at == last.at || edit.at + edit.removed == last.at);
}

std::optional<UndoStep> UndoHistory::Revert(UndoLog& from, UndoLog& to, const EditVisitor& visit) {
  if (depth_ > 0 || from.Empty()) return std::nullopt;
  open_ = false;
  const UndoStep step = from.Last();
  to.Start(step);
  while (auto taken = from.Take()) {
    const UndoEdit& edit = taken->edit;
    const Selection range{edit.at, edit.at + edit.inserted};
    Fragment removed = document_.Replace(range, std::move(taken->removed));
    to.Push({edit.at, edit.inserted, edit.removed, removed.mark}, std::move(removed.leaves));
    if (visit) visit(edit.at, edit.inserted, edit.removed);
  }
  from.Drop();
  return step;
}

}  // namespace lumenote
