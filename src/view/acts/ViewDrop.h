// Text dropped on a view.
#pragma once
#include "view/pane/NoteView.h"

namespace lumenote {

/// Text dragged within the view is moved (with Ctrl copied), text from elsewhere is put in. Points
/// are pixels of the pane. The view may be detached after a drop.
class ViewDrop {
 public:
  explicit ViewDrop(NoteView& view) : view_(view) {}

  /// A drag that may be dropped here is at a point; near an edge the text scrolls.
  void Move(PixelPoint at);
  void Leave() { view_.DropCaret(std::nullopt); }
  /// Whether anything could be put in; it is selected then.
  bool Drop(PixelPoint at, const ClipboardContent& content);
  /// Moves or copies the selection, which has been dragged to a point of its own view.
  void DropOwn(PixelPoint at, bool copy);
  /// Puts in what is selected elsewhere on the desktop, with the caret behind it.
  void Paste(PixelPoint at, const ClipboardContent& content);

 private:
  NoteView& view_;
};

}  // namespace lumenote
