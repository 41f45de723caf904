// Drops text on a view.
#pragma once
#include "view/acts/TextDrag.h"

namespace lumenote {

/// Text dragged within the view is moved (copied with Ctrl); text from elsewhere is inserted.
/// Points are in pane pixels. A drop may detach the view.
class ViewDrop {
 public:
  explicit ViewDrop(NoteView& view) : view_(view) {}

  /// An acceptable drag is over a point; near an edge the text scrolls.
  void Move(PixelPoint at);
  void Leave() { view_.DropCaret(std::nullopt); }
  /// Inserts and selects the content; false if there was nothing to insert.
  bool Drop(PixelPoint at, const ClipboardContent& content);
  /// Moves or copies the view's own selection to a point.
  void DropOwn(PixelPoint at, bool copy);
  /// Moves or copies what was dragged from this view, whatever is selected by now. If it has been
  /// edited since, it is inserted as it was.
  void DropBack(PixelPoint at, TextDrag& drag, bool copy);
  /// Inserts the desktop's selection and puts the caret after it.
  void Paste(PixelPoint at, const ClipboardContent& content);

 private:
  NoteView& view_;
};

}  // namespace lumenote
