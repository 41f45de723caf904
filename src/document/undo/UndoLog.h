// One direction of the undo history: a stack of steps.
#pragma once
#include <cassert>
#include <cstddef>
#include <optional>
#include <vector>

#include "document/text/Fragment.h"
#include "document/text/LeafStack.h"
#include "document/undo/UndoKind.h"

namespace lumenote {

/// A recorded edit: `inserted` units at `at` replaced `removed` ones. The log holds the removed
/// text; the inserted text is in the document when the edit is undone.
struct UndoEdit {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;
  std::optional<FinalMark> mark;  // the final mark that was replaced
};

struct UndoStep {
  UndoKind kind = UndoKind::Unknown;
  Selection before;
  Selection after;
};

/// Steps, their edits and the text these removed: a stack each. Continued typing extends the last
/// edit, so that a run of typing is one edit of any length.
class UndoLog {
 public:
  bool Empty() const { return steps_.empty(); }
  void Clear();

  /// Starts a step; subsequent `Push` calls add to it.
  void Start(const UndoStep& step);
  UndoStep& Last() { return steps_.back().step; }
  const UndoStep& Last() const { return steps_.back().step; }
  /// The last edit of the last step, which must have one.
  const UndoEdit& LastEdit() const { return edits_.back(); }

  /// On a failed allocation this and `Take` leave the log unchanged.
  void Push(const UndoEdit& edit, const LeafList& removed);
  /// Pops the last edit of the last step, which must have one, with the text it removed.
  struct Taken {
    UndoEdit edit;
    Fragment removed;
  };
  Taken Take();
  bool StepHasEdits() const { return !Empty() && edits_.size() > steps_.back().firstEdit; }
  std::size_t CountOfEdits() const { return edits_.size(); }
  /// Truncates the last edit to its first `inserted` units.
  void Shorten(Position inserted) {
    assert(StepHasEdits() && inserted <= LastEdit().inserted);
    edits_.back().inserted = inserted;
  }
  /// Pops the last step, whose edits must all have been taken.
  void Drop() {
    assert(!StepHasEdits());
    steps_.pop_back();
  }

 private:
  struct Entry {
    UndoStep step;
    std::size_t firstEdit = 0;
  };

  std::vector<Entry> steps_;
  std::vector<UndoEdit> edits_;
  LeafStack removed_;
};

}  // namespace lumenote
