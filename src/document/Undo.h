// The undo history: steps of edits, each with its kind and the selection around it.
#pragma once
#include <functional>
#include <optional>

#include "document/Document.h"
#include "document/UndoKind.h"
#include "document/UndoLog.h"

namespace lumenote {

/// Where an edit took place: `removed` units at `at` became `inserted` ones.
struct EditExtent {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;
  bool operator==(const EditExtent&) const = default;
};

/// Called after each edit of an undone or redone step, in the order they are applied.
using EditVisitor = std::function<void(Position at, Position removed, Position inserted)>;

/// Applies edits to a document, which outlives it, and remembers them. Steps merge only when both
/// are typing or both deletion, their edits touch, and the last one is still open; `Close`, another
/// kind, undo, redo and a paragraph break typed close it. A new edit forgets what could be redone.
class UndoHistory {
 public:
  explicit UndoHistory(Document& document) : document_(document) {}

  /// Between `Begin` and `End` every `Apply` joins one step; groups nest, the outermost counts. A
  /// group without an edit leaves no step. Each `Begin` needs its `End`, even when an edit raises.
  void Begin(UndoKind kind, Selection before);
  /// Replaces `from`..`to` as `Document::Replace` does, and tells what that came to. An edit that
  /// removes and inserts nothing is not remembered. Outside a group, one of kind Unknown is made.
  EditExtent Apply(Position from, Position to, Fragment inserted);
  void End(Selection after);

  void Close() { open_ = false; }
  void Clear();
  /// Without multi-level undo each new step forgets the one before.
  void MultiLevel(bool on) { multiLevel_ = on; }

  bool CanUndo() const { return !undo_.Empty(); }
  bool CanRedo() const { return !redo_.Empty(); }
  /// The kind of the step that would be undone (redone); Unknown when there is none.
  UndoKind UndoType() const;
  UndoKind RedoType() const;
  /// Undoes (redoes) one step and returns the selection to set; empty when there is none, or
  /// between `Begin` and `End`.
  std::optional<Selection> Undo(const EditVisitor& visit = {});
  std::optional<Selection> Redo(const EditVisitor& visit = {});

 private:
  void Remember(const EditExtent& edit, Fragment removed);
  void StartStep(const EditExtent& edit);
  bool Continues(const EditExtent& edit) const;
  std::optional<UndoStep> Revert(UndoLog& from, UndoLog& to, const EditVisitor& visit);

  Document& document_;
  UndoLog undo_;
  UndoLog redo_;
  bool multiLevel_ = true;
  bool open_ = false;     // the last step may go on
  int depth_ = 0;         // of groups
  bool started_ = false;  // the outermost group has its step
  bool closing_ = false;  // the outermost group put in a paragraph break
  UndoKind kind_ = UndoKind::Unknown;
  Selection before_;
};

}  // namespace lumenote
