#include "surface/editing/EditingCore.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "document/KeptEdits.h"
#include "surface/editing/ChangeSpan.h"

namespace lumenote {

namespace {

constexpr std::size_t kReserve = std::size_t{1} << 16;

/// Sets a flag for as long as it lives.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Raised() { flag_ = before_; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
  bool before_;
};

/// An undo step that ends with whatever selection there is then.
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

/// Many edits and moves, of which the view hears once.
class EditingCore::Batch {
 public:
  explicit Batch(EditingCore& core) : core_(core) { ++core_.batches_; }
  ~Batch() {
    if (--core_.batches_ == 0) core_.TellView();
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

// Returns whether anything moved.
bool EditingCore::Move(Position anchor, Position caret) {
  anchor = std::clamp(anchor, 0, document_.Length());
  caret = std::clamp(caret, 0, document_.Length());
  if (anchor == caret) {
    anchor = caret = document_.Before(caret);
  } else {
    const bool forward = anchor < caret;
    anchor = forward ? document_.Before(anchor) : document_.After(anchor);
    caret = forward ? document_.After(caret) : document_.Before(caret);
  }
  if (anchor == anchor_ && caret == caret_) return false;
  anchor_ = anchor;
  caret_ = caret;
  return moved_ = true;
}

void EditingCore::Select(Position anchor, Position caret) {
  RequireQuiet();
  if (!Move(anchor, caret)) return;
  chosenFormat_.reset();
  history_.Close();
  Tell();
}

CharFormat EditingCore::InsertionFormat() const {
  if (chosenFormat_) return *chosenFormat_;
  const Position start = Selected().start;
  const bool behind = HasSelection() || start == 0 || document_.At(start - 1) == u'\n';
  CharFormat format = CharacterFormat(document_.CharFormatAt(behind ? start : start - 1));
  format.kept = HasSelection() ? 0 : KeptOfTyping(document_, start);
  return format;
}

void EditingCore::Edit(UndoKind kind, const std::function<void()>& make) {
  RequireQuiet();
  {
    const OpenStep step(history_, kind, *this);
    Undoable(make);
  }
  Tell();
}

void EditingCore::BeginGroup() {
  history_.Begin(UndoKind::Unknown, Selected());
  ++batches_;
}

void EditingCore::EndGroup() {
  history_.End(Selected());
  if (--batches_ == 0) TellView();
}

void EditingCore::Atomically(const std::function<void()>& command) {
  const Batch batch(*this);
  Undoable(command);
}

void EditingCore::Undoable(const std::function<void()>& command) {
  if (!reserve_) reserve_.reset(new (std::nothrow) char[kReserve]);
  const UndoMark mark = history_.Mark();
  const Selection selected{anchor_, caret_};
  const std::optional<CharFormat> format = chosenFormat_;
  try {
    command();
  } catch (const std::bad_alloc&) {
    reserve_.reset();
    BackTo(mark, selected);
    chosenFormat_ = format;
    throw;
  }
}

void EditingCore::BackTo(const UndoMark& mark, Selection selected) {
  history_.BackTo(mark, [this](Position at, Position removed, Position inserted) {
    Note({at, removed, inserted});
  });
  Move(selected.start, selected.end);
  if (!telling_) Tell();
}

void EditingCore::Replace(Position from, Position to, const Fragment& fragment) {
  Note(history_.Apply(from, to, fragment));
}

void EditingCore::Note(const DocumentChange& edit) {
  lines_.Edited(edit.at);
  Widen(change_, edit);
  changed_ = true;
}

void EditingCore::Place(Position anchor, Position caret, std::optional<CharFormat> typing) {
  Move(anchor, caret);
  chosenFormat_ = typing;
}

void EditingCore::Undo() { Travel(&UndoHistory::Undo); }

void EditingCore::Redo() { Travel(&UndoHistory::Redo); }

void EditingCore::Travel(std::optional<Selection> (UndoHistory::*step)(const EditVisitor&)) {
  RequireQuiet();
  const auto note = [this](Position at, Position removed, Position inserted) {
    Note({at, removed, inserted});
  };
  try {
    const std::optional<Selection> selection = (history_.*step)(note);
    if (!selection) return;
    chosenFormat_.reset();
    Move(selection->start, selection->end);
  } catch (const std::bad_alloc&) {
    Move(anchor_, caret_);
    Tell();
    throw;
  }
  Tell();
}

void EditingCore::Load(const Fragment& whole) {
  RequireQuiet();
  const Position before = document_.Length();
  document_.Replace(0, before, whole);
  history_.Clear();
  lines_.Reset();
  chosenFormat_.reset();
  Widen(change_, {0, before, document_.Length()});
  changed_ = true;
  Move(0, 0);
  Tell();
}

void EditingCore::TellWrapWidth() {
  lines_.Reset();
  const Raised telling(telling_);
  if (view_) view_->WrapWidthChanged();
}

void EditingCore::RequireQuiet() const {
  if (telling_) throw RuntimeError(ErrorNumber::InvalidArgument);
}

SurfaceView* EditingCore::View() {
  TellView();
  return view_;
}

void EditingCore::Reveal() {
  revealing_ = true;
  if (batches_ == 0) TellView();
}

// A view that could not follow for want of memory lays everything out anew.
void EditingCore::TellView() {
  const std::optional<DocumentChange> change = std::exchange(change_, std::nullopt);
  const bool moved = std::exchange(moved_, false);
  const bool reveal = std::exchange(revealing_, false) || moved;
  if (!view_) return;
  const Raised telling(telling_);
  try {
    if (change) view_->DocumentChanged(*change);
    if (moved) view_->SelectionChanged();
    if (reveal) view_->RevealCaret();
  } catch (const std::bad_alloc&) {
    view_->WrapWidthChanged();
  }
}

void EditingCore::Tell() {
  const bool changed = std::exchange(changed_, false);
  const Raised telling(telling_);
  if (batches_ == 0) TellView();
  const std::function<void()> onChange = onChange_;
  if (changed && onChange) onChange();
}

}  // namespace lumenote
