// The document of a surface with its selection, history and lines: the one place that changes it.
#pragma once
#include <functional>
#include <memory>
#include <optional>

#include "document/Document.h"
#include "document/LineTable.h"
#include "document/undo/Undo.h"
#include "surface/editing/SurfaceView.h"

namespace lumenote {

/// Invariants: anchor and caret stand in the document, outside CR LF and surrogate pairs; view and
/// handler hear of a change after all of it has been made, and cannot make another meanwhile.
class EditingCore {
 public:
  /// Starts with an empty document; `breaker` outlives this object.
  explicit EditingCore(LineBreaker& breaker);
  EditingCore(const EditingCore&) = delete;
  EditingCore& operator=(const EditingCore&) = delete;

  const Document& Content() const { return document_; }
  const UndoHistory& History() const { return history_; }
  LineTable& Lines() { return lines_; }
  const CharFormat& CharacterFormat(CharId id) const { return document_.Formats().characters[id]; }
  const ParaFormat& ParagraphFormat(ParaId id) const { return document_.Formats().paragraphs[id]; }
  /// To give formats their numbers, which changes nothing that can be seen.
  FormatTables& Formats() { return document_.Formats(); }

  Position Anchor() const { return anchor_; }
  Position Caret() const { return caret_; }
  Selection Selected() const;
  bool HasSelection() const { return anchor_ != caret_; }
  /// Clips both to the document and moves them outwards where they fall inside a pair; a real move
  /// ends a run of typing.
  void Select(Position anchor, Position caret);

  /// The format of text typed now: the one chosen for it, else that of the first character
  /// selected, else of the one before the caret in its paragraph, else of the one behind it; never
  /// an embedded object itself. Between two characters of a field it is in the field too.
  CharFormat InsertionFormat() const;
  /// Chooses one, until the caret moves or something is typed.
  void InsertionFormat(const CharFormat& format) { chosenFormat_ = format; }

  /// Runs a command of several edits, of which the view hears at its end. When an allocation fails
  /// in it, all that it has edited is taken back, and the failure goes on.
  void Atomically(const std::function<void()>& command);

  /// Runs `make`, which calls `Replace` and `Place`, as one undo step and then tells about it.
  void Edit(UndoKind kind, const std::function<void()>& make);
  /// Inside `Edit`: puts `fragment` in the place of `from`..`to`.
  void Replace(Position from, Position to, const Fragment& fragment);
  /// Inside `Edit`: the selection after it; without it the old one stays. `typing` is the format of
  /// what is typed there next, where that should differ from the text around.
  void Place(Position anchor, Position caret, std::optional<CharFormat> typing = {});

  /// The edits between them are one undo step, of which the view hears at its end.
  void BeginGroup();
  void EndGroup();
  void CloseStep() { history_.Close(); }
  void MultiLevelUndo(bool on) { history_.MultiLevel(on); }
  void Undo();
  void Redo();
  /// New content with its final mark: no undo, caret at the start.
  void Load(const Fragment& whole);

  void View(SurfaceView* view) { view_ = view; }
  /// The view, which has been told of everything so far.
  SurfaceView* View();
  void OnChange(std::function<void()> handler) { onChange_ = std::move(handler); }
  /// Tells the view that lines wrap elsewhere.
  void TellWrapWidth();
  /// Has the view show the caret even where it did not move.
  void Reveal();
  /// Raises InvalidArgument while a notification runs.
  void RequireQuiet() const;

 private:
  class Batch;

  void Undoable(const std::function<void()>& command);
  void Note(const DocumentChange& edit);
  bool Move(Position anchor, Position caret);
  void BackTo(const UndoMark& mark, Selection selected);
  void Travel(std::optional<Selection> (UndoHistory::*step)(const EditVisitor&));
  void Tell();
  void TellView();

  Document document_;
  UndoHistory history_;
  LineTable lines_;
  Position anchor_ = 0;
  Position caret_ = 0;
  std::optional<CharFormat> chosenFormat_;

  SurfaceView* view_ = nullptr;
  std::function<void()> onChange_;
  /// Let go when memory runs out, for the way back.
  std::unique_ptr<char[]> reserve_;
  // What the view has still to hear.
  std::optional<DocumentChange> change_;
  bool moved_ = false;
  bool revealing_ = false;
  int batches_ = 0;       // around this; the view hears at the end of the outermost one
  bool changed_ = false;  // the document, since the handler was called
  bool telling_ = false;
};

}  // namespace lumenote
