// The undo history: steps of edits, each with its kind and the selection around it.
#pragma once
#include <functional>
#include <optional>

#include "document/Document.h"
#include "document/undo/UndoKind.h"
#include "document/undo/UndoLog.h"
#include "document/undo/UndoMark.h"

namespace lumenote {

/// Where an edit took place: `removed` units at `at` became `inserted` ones.
struct EditRange {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;
  bool operator==(const EditRange&) const = default;
};

/// Called after each edit of an undone or redone step, in the order they are applied.
using EditVisitor = std::function<void(Position at, Position removed, Position inserted)>;

/// Applies edits to a document, which outlives it, and remembers them. Steps merge only when both
/// are typing or both deletion, their edits touch, and the last one is still open; `Close`, another
/// kind, undo, redo and a paragraph break typed close it. A new edit forgets what could be redone.
///
/// An edit, undo or redo that fails for want of memory has changed nothing. Should there not even
/// be memory to put back what it had begun, the history forgets everything, so that it never
/// disagrees with the document.
class UndoHistory {
 public:
  explicit UndoHistory(Document& document) : document_(document) {}

  /// Between `Begin` and `End` every `Apply` joins one step; groups nest, the outermost counts. A
  /// group without an edit leaves no step. Each `Begin` needs its `End`, even when an edit raises.
  void Begin(UndoKind kind, Selection before);
  /// Replaces `from`..`to` as `Document::Replace` does, and tells what that came to. An edit that
  /// removes and inserts nothing is not remembered. Outside a group, one of kind Unknown is made.
  EditRange Apply(Position from, Position to, Fragment inserted);
  void End(Selection after);

  /// Where the history stands; `BackTo` takes back every edit since then, which cannot be redone.
  /// It does nothing where the mark is no longer good.
  UndoMark Mark() const;
  void BackTo(const UndoMark& mark, const EditVisitor& visit);

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
  class Alone;

  /// Exchanges a range for a fragment, which `keep` is then told to keep; all or nothing.
  template <class Keeping>
  void Exchange(Selection range, Fragment inserted, Keeping keep);
  void Remember(const EditRange& edit, const Fragment& removed);
  bool Continues(const EditRange& edit) const;
  std::optional<UndoStep> Revert(UndoLog& from, UndoLog& to, const EditVisitor& visit);
  /// Carries all edits of one log's last step to the last step of the other, or none.
  void CarryStep(UndoLog& from, UndoLog& to, const EditVisitor& visit);
  void CarryEdit(UndoLog& from, UndoLog& to, const EditVisitor& visit);
  void PutBack(UndoLog& log, const UndoLog::Taken& taken);
  void TakeBack(const EditVisitor& visit);
  void TakeBackTyping(Position inserted, const EditVisitor& visit);

  Document& document_;
  UndoLog undo_;
  UndoLog redo_;
  std::uint64_t age_ = 0;
  std::size_t stepsBegun_ = 0;
  bool multiLevel_ = true;
  bool open_ = false;     // the last step may go on
  int depth_ = 0;         // of groups
  bool started_ = false;  // the outermost group has its step
  bool closing_ = false;  // the outermost group put in a paragraph break
  UndoKind kind_ = UndoKind::Unknown;
  Selection before_;
};

}  // namespace lumenote
