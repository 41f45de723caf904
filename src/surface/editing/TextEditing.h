// Edits of the text: replacing, deleting, typing, moving.
#pragma once
#include <optional>
#include <string_view>
#include <vector>

#include "document/Search.h"
#include "document/tables/CellParagraphs.h"
#include "document/tables/CellTexts.h"
#include "surface/editing/EditingCore.h"

namespace lumenote {

/// Each member is one command and one undo step of its kind. A paragraph that results from joining
/// keeps the format of the first one, unless that was removed entirely. The cells of tables stay
/// where they are (`FindCellTexts`), and with the program's texts (kind Unknown) what they say
/// again (`CutAroundKept`).
class TextEditing {
 public:
  explicit TextEditing(EditingCore& core) : core_(core) {}

  /// Replaces the selection by `text` in the insertion format; the caret ends after it. A fragment
  /// with a mark brings the note another head.
  void ReplaceSelection(UndoKind kind, std::u16string_view text);
  void ReplaceSelection(UndoKind kind, const Fragment& fragment);
  /// Replaces all of the selection, cells included, by what the program brings.
  void ReplaceWhole(const Fragment& fragment);
  /// Text typed next takes the format of the first character deleted.
  void DeleteSelection(UndoKind kind);
  void Delete(UndoKind kind, Position from, Position to);

  /// `RichTextSurface::ReplaceAll` in one pass; empty, without a change, where that will not do.
  std::optional<Position> ReplaceAll(std::u16string_view text, std::u16string_view replacement,
                                     SearchOptions options, Position most);

  /// Extends the current run of typing. Each CR LF starts a paragraph with the same formats and
  /// ends the run.
  void Type(std::u16string_view text);

  /// Moves or copies the selected text to `target` and selects it there. Does nothing if `target`
  /// lies inside the selection, or in a row that begins there if rows are moved.
  void MoveSelection(Position target, bool copy);
  /// Inserts `fragment` at `target` and selects it.
  void Drop(const Fragment& fragment, Position target);

  /// The text as typing it over the selection would format it.
  Fragment Plain(std::u16string_view text) const;

 private:
  void TakeTables(const Fragment& fragment, Position at);
  Position Put(UndoKind kind, Selection range, const Fragment& fragment);
  void PutBreak(Position at);
  void ReplaceAroundKept(std::u16string_view text);
  void ReplaceTexts(UndoKind kind, const CellTexts& texts, const Fragment& fragment);
  void Remove(const CellTexts& texts);
  /// Removes the others and returns the first part.
  Selection RemoveBehindFirst(const CellTexts& texts);
  void EndTable();
  void ReplaceRange(Position from, Position to, const Fragment& fragment);
  void ReplaceKeepingSectionStart(Position from, Position to, const Fragment& fragment);
  void Reformat(const CellParagraph& paragraph, ParaId format);
  bool IsSelected(std::u16string_view text) const;
  bool HasText(Selection range, std::u16string_view text, CharId format) const;
  CharId TypedFormat() const;
  ParaId TypedParagraph(Selection range) const;
  void TypeBreak();

  EditingCore& core_;
};

}  // namespace lumenote
