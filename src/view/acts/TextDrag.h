// Selected text leaving the view: dragged, or offered to other programs.
#pragma once
#include <string>
#include <vector>

#include "document/tables/CopiedRows.h"
#include "platform/Clipboard.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// A snapshot of a selection. It shares its leaves with the document, so it is cheap whatever its
/// length.
class TextExcerpt {
 public:
  explicit TextExcerpt(const DocumentSurface& surface)
      : range_(surface.Selected()), written_(WithRowEnd(surface.Content(), range_)) {}

  Selection Range() const { return range_; }
  /// Generated on request.
  std::u16string Text() const { return written_.document.Text(range_.start, range_.end); }
  /// As much of the text as tells what it is.
  std::u16string Beginning() const;
  std::string Rtf() const;
  std::string Html() const;
  /// The picture, if that alone is in it.
  std::vector<std::string> Images() const;
  ClipboardContent Content() const { return {Text(), Rtf(), Html()}; }

 private:
  Selection range_;
  CopiedText written_;  // as RTF and HTML
};

/// Text dragged out of a view. A drop within the view moves the text itself (`ViewDrop::DropBack`);
/// text moved anywhere else is deleted here once the receiver has acknowledged it.
class TextDrag {
 public:
  /// Takes the view's selection; the view must outlive the drag.
  explicit TextDrag(NoteView& view) : view_(view), text_(view.Surface()), edits_(view.Edits()) {}

  const TextExcerpt& Text() const { return text_; }
  /// Whether the text is unchanged, so that it may still be deleted here.
  bool MayMove() const {
    return view_.IsAttached() && view_.Edits() == edits_ && !view_.IsLocked();
  }
  /// Selects the text again, whatever has been selected since; false if it may not be moved.
  bool Reselect();
  /// The receiver has the text: deletes it here if that is allowed.
  void Moved();

 private:
  NoteView& view_;
  TextExcerpt text_;
  int edits_;  // edit count of the view at the start
};

}  // namespace lumenote
