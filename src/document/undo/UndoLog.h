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

/// An edit as it is remembered: `inserted` units at `at` stand where `removed` ones stood. The
/// removed text lies in the log; the inserted one is in the document when the edit's turn comes.
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

/// Steps, their edits and what these removed, each in one stack. Text typed on extends the edit
/// before it, so a run of typing is one edit however long.
class UndoLog {
 public:
  bool Empty() const { return steps_.empty(); }
  void Clear();

  /// Starts a step; what is pushed from now on belongs to it.
  void Start(const UndoStep& step);
  UndoStep& Last() { return steps_.back().step; }
  const UndoStep& Last() const { return steps_.back().step; }
  /// The last edit of the last step, which has one.
  const UndoEdit& LastEdit() const { return edits_.back(); }

  /// This and `Take` leave the log as it was when an allocation fails.
  void Push(const UndoEdit& edit, const LeafList& removed);
  /// Takes the last step's last edit, which there is, with what it removed.
  struct Taken {
    UndoEdit edit;
    Fragment removed;
  };
  Taken Take();
  bool StepHasEdits() const { return !Empty() && edits_.size() > steps_.back().firstEdit; }
  std::size_t CountOfEdits() const { return edits_.size(); }
  /// Makes the last edit forget that typing went on behind the first `inserted` units.
  void Shorten(Position inserted) {
    assert(StepHasEdits() && inserted <= LastEdit().inserted);
    edits_.back().inserted = inserted;
  }
  /// Ends the last step, all of whose edits have been taken.
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
