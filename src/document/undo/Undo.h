// The undo history: steps of edits, each with its kind and the selections before and after.
#pragma once
#include <functional>
#include <optional>

#include "document/Document.h"
#include "document/undo/UndoKind.h"
#include "document/undo/UndoLog.h"
#include "document/undo/UndoSavepoint.h"

namespace lumenote {

/// The range of an edit: `removed` units at `at` became `inserted` ones.
struct EditRange {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;
  bool operator==(const EditRange&) const = default;
};

/// Called after each edit of an undone or redone step, in the order of application.
using EditVisitor = std::function<void(Position at, Position removed, Position inserted)>;

/// Applies edits to a document, which must outlive it, and records them. Steps merge only if both
/// are typing or both deletion, their edits are adjacent, and the last step is still open; `Close`,
/// a step of another kind, undo, redo and a typed paragraph break close it. A new edit clears the
/// redo stack.
///
/// An edit, undo or redo that fails to allocate changes nothing. If there is not even memory to
/// restore the document, the history is cleared, so that it always matches the document.
class UndoHistory {
 public:
  explicit UndoHistory(Document& document) : document_(document) {}

  /// Every `Apply` between `Begin` and `End` joins one step; groups nest, the outermost determines
  /// the step. An empty group leaves no step. Each `Begin` needs its `End`, even after an
  /// exception.
  void Begin(UndoKind kind, Selection before);
  /// Replaces `from`..`to` like `Document::Replace` and returns the actual range. An edit that
  /// changes no text and no mark is not recorded. Outside a group it becomes a step of kind
  /// Unknown.
  EditRange Apply(Position from, Position to, Fragment inserted);
  void End(Selection after);

  /// A savepoint; `RollBackTo` rolls back every edit since, without redo. Does nothing if the
  /// savepoint has become invalid.
  UndoSavepoint Savepoint() const;
  void RollBackTo(const UndoSavepoint& savepoint, const EditVisitor& visit);

  void Close() { open_ = false; }
  void Clear();
  /// Without multi-level undo each new step replaces the last one.
  void MultiLevel(bool on) { multiLevel_ = on; }

  bool CanUndo() const { return !undo_.Empty(); }
  bool CanRedo() const { return !redo_.Empty(); }
  /// The kind of the step that would be undone (redone); Unknown if there is none.
  UndoKind UndoType() const;
  UndoKind RedoType() const;
  /// Undoes (redoes) one step and returns the selection to restore; empty if there is no step, or
  /// inside a group.
  std::optional<Selection> Undo(const EditVisitor& visit = {});
  std::optional<Selection> Redo(const EditVisitor& visit = {});

 private:
  class ImplicitGroup;

  /// Replaces a range and passes the removed fragment to `keep`; rolls back if that fails to
  /// allocate.
  template <class Keeping>
  void ReplaceKeeping(Selection range, Fragment inserted, Keeping keep);
  void Remember(const EditRange& edit, const Fragment& removed);
  bool Continues(const EditRange& edit) const;
  std::optional<UndoStep> Revert(UndoLog& from, UndoLog& to, const EditVisitor& visit);
  /// Moves all edits of one log's last step to the other log's last step, applying them; all or
  /// nothing.
  void MoveStep(UndoLog& from, UndoLog& to, const EditVisitor& visit);
  void MoveEdit(UndoLog& from, UndoLog& to, const EditVisitor& visit);
  void PutBack(UndoLog& log, const UndoLog::Taken& taken);
  void RollBackEdit(const EditVisitor& visit);
  void RollBackTyping(Position inserted, const EditVisitor& visit);

  Document& document_;
  UndoLog undo_;
  UndoLog redo_;
  std::uint64_t age_ = 0;
  std::size_t stepsBegun_ = 0;
  bool multiLevel_ = true;
  bool open_ = false;     // the last step may be extended
  int depth_ = 0;         // nesting depth of groups
  bool started_ = false;  // the outermost group has recorded its step
  bool closing_ = false;  // the outermost group has inserted a paragraph break
  UndoKind kind_ = UndoKind::Unknown;
  Selection before_;
};

}  // namespace lumenote
