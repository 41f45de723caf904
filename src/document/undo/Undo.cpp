#include "document/undo/Undo.h"

#include <new>
#include <utility>

namespace lumenote {

void UndoHistory::Begin(UndoKind kind, Selection before) {
  if (depth_++ > 0) return;
  kind_ = kind;
  before_ = before;
  started_ = false;
  closing_ = false;
}

/// An implicit group for an edit made outside any group.
class UndoHistory::ImplicitGroup {
 public:
  ImplicitGroup(UndoHistory& history, Selection range, Selection after)
      : history_(history), after_(after), implicit_(history.depth_ == 0) {
    if (implicit_) history_.Begin(UndoKind::Unknown, range);
  }
  ~ImplicitGroup() {
    if (implicit_) history_.End(after_);
  }
  ImplicitGroup(const ImplicitGroup&) = delete;
  ImplicitGroup& operator=(const ImplicitGroup&) = delete;

 private:
  UndoHistory& history_;
  Selection after_;
  bool implicit_;
};

EditRange UndoHistory::Apply(Position from, Position to, Fragment inserted) {
  const Selection range = document_.SnapOutward(from, to);
  const EditRange edit{range.start, range.Length(), inserted.Length()};
  if (inserted.mark == document_.Mark()) inserted.mark.reset();
  if (edit.removed == 0 && edit.inserted == 0 && !inserted.mark) return edit;
  const bool closing = inserted.leaves.Breaks() > 0;
  const Position end = edit.at + edit.inserted;
  const ImplicitGroup group(*this, range, {end, end});
  ReplaceKeeping(range, std::move(inserted),
                 [&](const Fragment& removed) { Remember(edit, removed); });
  closing_ |= closing;
  return edit;
}

template <class Keeping>
void UndoHistory::ReplaceKeeping(Selection range, Fragment inserted, Keeping keep) {
  const Position end = range.start + inserted.Length();
  Fragment removed = document_.Replace(range, std::move(inserted));
  try {
    keep(removed);
  } catch (const std::bad_alloc&) {
    try {
      document_.Replace(Selection{range.start, end}, std::move(removed));
    } catch (const std::bad_alloc&) {
      Clear();
    }
    throw;
  }
}

void UndoHistory::End(Selection after) {
  if (depth_ == 0 || --depth_ > 0 || !started_) return;
  undo_.Last().after = after;
  redo_.Clear();
  open_ = kind_ == UndoKind::Delete || (kind_ == UndoKind::Typing && !closing_);
}

void UndoHistory::Clear() {
  undo_.Clear();
  redo_.Clear();
  open_ = false;
  started_ = false;
  ++age_;
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

void UndoHistory::Remember(const EditRange& edit, const Fragment& removed) {
  const UndoEdit entry{edit.at, edit.removed, edit.inserted, removed.mark};
  if (started_ || Continues(edit)) {
    undo_.Push(entry, removed.leaves);
  } else {
    UndoLog single;
    UndoLog& log = multiLevel_ ? undo_ : single;
    log.Start({kind_, before_, before_});
    try {
      log.Push(entry, removed.leaves);
    } catch (const std::bad_alloc&) {
      log.Drop();
      throw;
    }
    if (!multiLevel_) undo_ = std::move(single);
    ++stepsBegun_;
  }
  started_ = true;
}

bool UndoHistory::Continues(const EditRange& edit) const {
  if (!open_ || undo_.Empty() || undo_.Last().kind != kind_) return false;
  const UndoEdit& last = undo_.LastEdit();
  if (kind_ == UndoKind::Typing) return edit.at == last.at + last.inserted;
  return edit.inserted == 0 && (edit.at == last.at || edit.at + edit.removed == last.at);
}

std::optional<UndoStep> UndoHistory::Revert(UndoLog& from, UndoLog& to, const EditVisitor& visit) {
  if (depth_ > 0 || from.Empty()) return std::nullopt;
  open_ = false;
  ++age_;
  const UndoStep step = from.Last();
  to.Start(step);
  MoveStep(from, to, visit);
  from.Drop();
  return step;
}

void UndoHistory::MoveStep(UndoLog& from, UndoLog& to, const EditVisitor& visit) {
  try {
    while (from.StepHasEdits()) MoveEdit(from, to, visit);
  } catch (const std::bad_alloc&) {
    try {
      while (to.StepHasEdits()) MoveEdit(to, from, visit);
      if (!to.Empty()) to.Drop();
    } catch (const std::bad_alloc&) {
      Clear();
    }
    throw;
  }
}

void UndoHistory::MoveEdit(UndoLog& from, UndoLog& to, const EditVisitor& visit) {
  const UndoLog::Taken taken = from.Take();
  const UndoEdit& edit = taken.edit;
  try {
    ReplaceKeeping({edit.at, edit.at + edit.inserted}, taken.removed, [&](const Fragment& removed) {
      to.Push({edit.at, edit.inserted, edit.removed, removed.mark}, removed.leaves);
    });
  } catch (const std::bad_alloc&) {
    PutBack(from, taken);
    throw;
  }
  if (visit) visit(edit.at, edit.inserted, edit.removed);
}

void UndoHistory::PutBack(UndoLog& log, const UndoLog::Taken& taken) {
  try {
    if (!log.Empty()) log.Push(taken.edit, taken.removed.leaves);
  } catch (const std::bad_alloc&) {
    Clear();
  }
}

// --- rolling back

UndoSavepoint UndoHistory::Savepoint() const {
  const std::size_t edits = undo_.CountOfEdits();
  return {age_, stepsBegun_, edits, edits > 0 ? undo_.LastEdit().inserted : 0};
}

void UndoHistory::RollBackTo(const UndoSavepoint& savepoint, const EditVisitor& visit) {
  if (savepoint.age != age_) return;
  open_ = false;
  try {
    for (; stepsBegun_ > savepoint.steps && !undo_.Empty(); --stepsBegun_) {
      while (undo_.StepHasEdits()) RollBackEdit(visit);
      undo_.Drop();
      started_ = false;
    }
    while (undo_.CountOfEdits() > savepoint.edits) RollBackEdit(visit);
    if (undo_.CountOfEdits() == savepoint.edits && undo_.StepHasEdits())
      RollBackTyping(savepoint.lastInserted, visit);
  } catch (const std::bad_alloc&) {
    Clear();
  }
}

void UndoHistory::RollBackEdit(const EditVisitor& visit) {
  const auto [edit, removed] = undo_.Take();
  document_.Replace(Selection{edit.at, edit.at + edit.inserted}, removed);
  visit(edit.at, edit.inserted, edit.removed);
}

void UndoHistory::RollBackTyping(Position inserted, const EditVisitor& visit) {
  const UndoEdit& last = undo_.LastEdit();
  if (last.inserted == inserted) return;
  const Selection typed{last.at + inserted, last.at + last.inserted};
  document_.Replace(typed, {});
  undo_.Shorten(inserted);
  visit(typed.start, typed.Length(), 0);
}

}  // namespace lumenote
