// Changes of the text: replacing, deleting, typing, moving.
#pragma once
#include <string_view>

#include "surface/editing/EditingCore.h"

namespace lumenote {

/// Each member is one act on the document and one undo step of its kind. Where an act joins
/// paragraphs, the result keeps the format of the first one, unless that one went as a whole.
class TextEditing {
 public:
  explicit TextEditing(EditingCore& core) : core_(core) {}

  /// Puts the text, in the insertion format, in the place of the selection, caret behind it.
  void ReplaceSelection(UndoKind kind, std::u16string_view text);
  void ReplaceSelection(UndoKind kind, const Fragment& fragment);
  /// What is typed next looks like the first character deleted.
  void DeleteSelection(UndoKind kind);
  void Delete(UndoKind kind, Position from, Position to);

  /// A run of typing; each CR LF begins a paragraph in the same formats and ends the run.
  void Type(std::u16string_view text);

  /// Moves, or copies, the selected text to `target` and selects it there; does nothing when
  /// `target` lies inside it.
  void MoveSelection(Position target, bool copy);
  /// Puts `fragment` at `target` and selects it.
  void Drop(const Fragment& fragment, Position target);

  /// Text as if it were typed over the selection.
  Fragment Plain(std::u16string_view text) const;

 private:
  void Exchange(Position from, Position to, const Fragment& fragment);
  void Substitute(Position from, Position to, const Fragment& fragment);
  void Reformat(Position paragraph, ParaId format);
  bool IsSelected(std::u16string_view text) const;
  CharId TypedFormat() const;
  void TypeBreak();

  EditingCore& core_;
};

}  // namespace lumenote
