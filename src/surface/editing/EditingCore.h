// A surface's document with its selection, history and lines: the only place that edits it.
#pragma once
#include <functional>
#include <memory>
#include <optional>

#include "document/Document.h"
#include "document/LineTable.h"
#include "document/undo/Undo.h"
#include "surface/editing/ListEdits.h"
#include "surface/editing/SurfaceView.h"

namespace lumenote {

/// Invariants: anchor and caret lie in the document, never inside a CR LF or surrogate pair. View
/// and handler are notified of a change once it is complete, and cannot edit during the
/// notification.
class EditingCore {
 public:
  /// Starts with an empty document; `breaker` must outlive this object.
  explicit EditingCore(LineBreaker& breaker);
  EditingCore(const EditingCore&) = delete;
  EditingCore& operator=(const EditingCore&) = delete;

  const Document& Content() const { return document_; }
  const UndoHistory& History() const { return history_; }
  LineTable& Lines() { return lines_; }
  const CharFormat& CharacterFormat(CharId id) const { return document_.Formats().characters[id]; }
  const ParaFormat& ParagraphFormat(ParaId id) const { return document_.Formats().paragraphs[id]; }
  /// Mutable for interning formats, which has no visible effect.
  FormatTables& Formats() { return document_.Formats(); }

  Position Anchor() const { return anchor_; }
  Position Caret() const { return caret_; }
  Selection Selected() const;
  bool HasSelection() const { return anchor_ != caret_; }
  /// Clips both to the document and moves them outwards if inside a pair. A change ends a run of
  /// typing.
  void Select(Position anchor, Position caret);
  /// Selects everything; what is looked at stays in view.
  void SelectAll();

  /// The format of text typed now: the one chosen for it, else that of the first selected
  /// character, else of the one before the caret in its paragraph, else of the one after it; never
  /// an embedded object itself. Between two characters of a field it joins the field, in place of
  /// some, too.
  CharFormat InsertionFormat() const;
  /// Chooses the format of text typed next, until the caret moves or something is typed.
  void InsertionFormat(const CharFormat& format) { chosenFormat_ = format; }

  /// Runs a command that makes several edits and notifies the view once, at its end. If an
  /// allocation fails in it, its edits are rolled back and the failure propagates.
  void Atomically(const std::function<void()>& command);

  /// Runs `make`, which calls `Replace` and `Place`, as one undo step, then sends notifications.
  /// The numbers of lists follow.
  void Edit(UndoKind kind, const std::function<void()>& make);
  /// Inside `Edit`: replaces `from`..`to` by `fragment`.
  void Replace(Position from, Position to, const Fragment& fragment);
  /// The same for a fragment with the breaks and the ends of cells that are replaced.
  void ReplaceText(Position from, Position to, const Fragment& fragment);
  /// Inside `Edit`: sets the selection after it, else unchanged. `typing` is the format of text
  /// typed next, if it should differ from that of the surrounding text.
  void Place(Position anchor, Position caret, std::optional<CharFormat> typing = {});

  /// Brackets edits that are one undo step and one notification of the view, at the end.
  void BeginGroup();
  void EndGroup();
  void CloseStep() { history_.Close(); }
  void MultiLevelUndo(bool on) { history_.MultiLevel(on); }
  void Undo();
  void Redo();
  /// Replaces content and final mark; clears the undo history and puts the caret at the start.
  void Load(const Fragment& whole);

  void View(SurfaceView* view) { view_ = view; }
  /// Sends the view all pending notifications first.
  SurfaceView* View();
  void OnChange(std::function<void()> handler) { onChange_ = std::move(handler); }
  /// Tells the view that the wrap width has changed.
  void NotifyWrapWidth();
  /// Scrolls the caret into view even if it did not move.
  void Reveal();
  /// Raises InvalidArgument while a notification runs.
  void RefuseWhileNotifying() const;

 private:
  class Batch;

  void Undoable(const std::function<void()>& command);
  void Renumber();
  void RecordEdit(const DocumentChange& edit);
  bool Move(Position anchor, Position caret);
  void EndMove();
  void RollBackTo(const UndoSavepoint& savepoint, Selection selected);
  void Revert(std::optional<Selection> (UndoHistory::*step)(const EditVisitor&));
  void Notify();
  void NotifyView();

  Document document_;
  UndoHistory history_;
  LineTable lines_;
  ListEdits lists_{document_};
  Position anchor_ = 0;
  Position caret_ = 0;
  std::optional<CharFormat> chosenFormat_;

  SurfaceView* view_ = nullptr;
  std::function<void()> onChange_;
  /// Freed when an allocation fails, to leave memory for the rollback.
  std::unique_ptr<char[]> reserve_;
  // Not yet reported to the view.
  std::optional<DocumentChange> change_;
  bool moved_ = false;
  bool revealing_ = false;
  int batches_ = 0;       // nesting depth; the view is notified at the end of the outermost
  bool changed_ = false;  // since the handler was last called
  bool notifying_ = false;
};

}  // namespace lumenote
