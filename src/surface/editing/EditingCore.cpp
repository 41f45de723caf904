#include "surface/editing/EditingCore.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "base/ScopedFlag.h"
#include "document/KeptEdits.h"
#include "document/tables/TableRow.h"
#include "surface/editing/MergeEdit.h"

namespace lumenote {

namespace {

constexpr std::size_t kReserve = std::size_t{1} << 16;

/// An undo step; the selection at its end is the one to restore on redo.
class OpenStep {
 public:
  OpenStep(UndoHistory& history, UndoKind kind, const EditingCore& core)
      : history_(history), core_(core) {
    history_.Begin(kind, core_.Selected());
  }
  ~OpenStep() { history_.End(core_.Selected()); }
  OpenStep(const OpenStep&) = delete;
  OpenStep& operator=(const OpenStep&) = delete;

 private:
  UndoHistory& history_;
  const EditingCore& core_;
};

}  // namespace

/// Groups edits and selection moves into one notification of the view.
class EditingCore::Batch {
 public:
  explicit Batch(EditingCore& core) : core_(core) { ++core_.batches_; }
  ~Batch() {
    if (--core_.batches_ == 0) core_.NotifyView();
  }
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;

 private:
  EditingCore& core_;
};

EditingCore::EditingCore(LineBreaker& breaker) : history_(document_), lines_(document_, breaker) {
  history_.MultiLevel(false);
}

Selection EditingCore::Selected() const {
  return {std::min(anchor_, caret_), std::max(anchor_, caret_)};
}

// Returns whether the selection changed.
bool EditingCore::Move(Position anchor, Position caret) {
  anchor = std::clamp(anchor, 0, document_.Length());
  caret = std::clamp(caret, 0, document_.Length());
  if (anchor == caret) {
    anchor = caret = document_.SnapBackward(caret);
  } else {
    const bool forward = anchor < caret;
    anchor = forward ? document_.SnapBackward(anchor) : document_.SnapForward(anchor);
    caret = forward ? document_.SnapForward(caret) : document_.SnapBackward(caret);
  }
  if (anchor == anchor_ && caret == caret_) return false;
  anchor_ = anchor;
  caret_ = caret;
  return moved_ = revealing_ = true;
}

void EditingCore::Select(Position anchor, Position caret) {
  RefuseWhileNotifying();
  if (Move(anchor, caret)) EndMove();
}

void EditingCore::SelectAll() {
  RefuseWhileNotifying();
  const bool revealing = revealing_;
  if (!Move(0, document_.Length())) return;
  revealing_ = revealing;
  EndMove();
}

void EditingCore::EndMove() {
  chosenFormat_.reset();
  history_.Close();
  Notify();
}

CharFormat EditingCore::InsertionFormat() const {
  if (chosenFormat_) return *chosenFormat_;
  const Position start = Selected().start;
  const bool behind = HasSelection() || start == 0 || document_.At(start - 1) == u'\n';
  CharFormat format = CharacterFormat(document_.CharFormatAt(behind ? start : start - 1));
  format.kept = KeptOfTyping(document_, Selected());
  return format;
}

void EditingCore::Edit(UndoKind kind, const std::function<void()>& make) {
  RefuseWhileNotifying();
  {
    const OpenStep step(history_, kind, *this);
    Undoable([&] {
      lists_.Begin();
      make();
      Renumber();
    });
  }
  Notify();
}

void EditingCore::Renumber() {
  const std::vector<NumberChange> changes = lists_.Finish();
  if (changes.empty()) return;
  ChangedText text = WithChanges(document_, document_.Formats(), changes);
  const Position anchor = ShiftedBy(changes, anchor_);
  const Position caret = ShiftedBy(changes, caret_);
  RecordEdit(history_.Apply(text.range.start, text.range.end, std::move(text.fragment)));
  Move(anchor, caret);
}

void EditingCore::BeginGroup() {
  history_.Begin(UndoKind::Unknown, Selected());
  ++batches_;
}

void EditingCore::EndGroup() {
  history_.End(Selected());
  if (--batches_ == 0) NotifyView();
}

void EditingCore::Atomically(const std::function<void()>& command) {
  const Batch batch(*this);
  Undoable(command);
}

void EditingCore::Undoable(const std::function<void()>& command) {
  if (!reserve_) reserve_.reset(new (std::nothrow) char[kReserve]);
  const UndoSavepoint savepoint = history_.Savepoint();
  const Selection selected{anchor_, caret_};
  const std::optional<CharFormat> format = chosenFormat_;
  try {
    command();
  } catch (const std::bad_alloc&) {
    reserve_.reset();
    RollBackTo(savepoint, selected);
    chosenFormat_ = format;
    throw;
  }
}

void EditingCore::RollBackTo(const UndoSavepoint& savepoint, Selection selected) {
  history_.RollBackTo(savepoint, [this](Position at, Position removed, Position inserted) {
    RecordEdit({at, removed, inserted});
  });
  Move(selected.start, selected.end);
  if (!notifying_) Notify();
}

void EditingCore::Replace(Position from, Position to, const Fragment& fragment) {
  lists_.Before(from, to, fragment);
  ReplaceText(from, to, fragment);
}

void EditingCore::ReplaceText(Position from, Position to, const Fragment& fragment) {
  RecordEdit(history_.Apply(from, to, fragment));
}

// A paragraph in a table has other lines once it is part of a row.
void EditingCore::RecordEdit(const DocumentChange& edit) {
  const Document& document = Content();
  const Position rows = FirstOfRowsAround(document, edit.at);
  const bool inRow = rows < document.ParagraphStart(document.ParagraphOf(edit.at));
  lines_.Edited(inRow ? rows : edit.at);
  MergeEdit(change_, edit);
  changed_ = true;
}

void EditingCore::Place(Position anchor, Position caret, std::optional<CharFormat> typing) {
  Move(anchor, caret);
  chosenFormat_ = typing;
}

void EditingCore::Undo() { Revert(&UndoHistory::Undo); }

void EditingCore::Redo() { Revert(&UndoHistory::Redo); }

void EditingCore::Revert(std::optional<Selection> (UndoHistory::*step)(const EditVisitor&)) {
  RefuseWhileNotifying();
  const auto note = [this](Position at, Position removed, Position inserted) {
    RecordEdit({at, removed, inserted});
  };
  try {
    const std::optional<Selection> selection = (history_.*step)(note);
    if (!selection) return;
    chosenFormat_.reset();
    Move(selection->start, selection->end);
  } catch (const std::bad_alloc&) {
    Move(anchor_, caret_);
    Notify();
    throw;
  }
  Notify();
}

void EditingCore::Load(const Fragment& whole) {
  RefuseWhileNotifying();
  const Position before = document_.Length();
  document_.Replace(0, before, whole);
  history_.Clear();
  lines_.Reset();
  chosenFormat_.reset();
  MergeEdit(change_, {0, before, document_.Length()});
  changed_ = true;
  Move(0, 0);
  Notify();
}

void EditingCore::NotifyWrapWidth() {
  lines_.Reset();
  const ScopedFlag notifying(notifying_);
  if (view_) view_->WrapWidthChanged();
}

void EditingCore::RefuseWhileNotifying() const {
  if (notifying_) throw RuntimeError(ErrorNumber::InvalidArgument);
}

SurfaceView* EditingCore::View() {
  NotifyView();
  return view_;
}

void EditingCore::Reveal() {
  revealing_ = true;
  if (batches_ == 0) NotifyView();
}

// A view that runs out of memory while updating lays everything out again.
void EditingCore::NotifyView() {
  const std::optional<DocumentChange> change = std::exchange(change_, std::nullopt);
  const bool moved = std::exchange(moved_, false);
  const bool reveal = std::exchange(revealing_, false);
  if (!view_) return;
  const ScopedFlag notifying(notifying_);
  try {
    if (change) view_->DocumentChanged(*change);
    if (moved) view_->SelectionChanged();
    if (reveal) view_->RevealCaret();
  } catch (const std::bad_alloc&) {
    view_->WrapWidthChanged();
  }
}

void EditingCore::Notify() {
  const bool changed = std::exchange(changed_, false);
  const ScopedFlag notifying(notifying_);
  if (batches_ == 0) NotifyView();
  const std::function<void()> onChange = onChange_;
  if (changed && onChange) onChange();
}

}  // namespace lumenote
