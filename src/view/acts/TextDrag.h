// Selected text on its way out: dragged, or offered to other programs.
#pragma once
#include <string>

#include "view/pane/NoteView.h"

namespace lumenote {

/// A selection as it was when this was made, which later edits do not reach; it shares its leaves
/// with the document, so that it costs little however long it is.
class TextExcerpt {
 public:
  explicit TextExcerpt(const DocumentSurface& surface)
      : document_(surface.Content()), range_(surface.Selected()) {}

  Selection Range() const { return range_; }
  /// Each is made when it is asked for.
  std::u16string Text() const { return document_.Text(range_.start, range_.end); }
  std::string Rtf() const;

 private:
  Document document_;
  Selection range_;
};

/// Text dragged out of a view. Within the view the drop itself moves it (`ViewDrop::DropOwn`);
/// moved anywhere else, it is deleted here when whoever has got it has said so.
class TextDrag {
 public:
  /// The selection of the view, which outlives the drag.
  explicit TextDrag(NoteView& view) : view_(view), text_(view.Surface()), edits_(view.Edits()) {}

  const TextExcerpt& Text() const { return text_; }
  /// Whether the text may still be taken away here: it is as it was.
  bool MayMove() const {
    return view_.IsAttached() && view_.Edits() == edits_ && !view_.IsLocked();
  }
  /// The other side has the text, to keep: deletes it here, if that may be.
  void Moved();

 private:
  NoteView& view_;
  TextExcerpt text_;
  int edits_;  // that the view had seen
};

}  // namespace lumenote
