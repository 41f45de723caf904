// Tells assistive programs what happens in a view.
#pragma once
#include <optional>

#include "document/text/LeafList.h"
#include "surface/editing/SurfaceView.h"

namespace lumenote {

class RichTextView;

/// Costs next to nothing while no assistive program runs. While one does, keeps the text that it
/// knows, in leaves shared with the document, so that what is removed can be told.
class Announcer {
 public:
  /// `view` must outlive it.
  explicit Announcer(RichTextView& view) : view_(view) {}

  /// A change of formats alone is not told as one of the text.
  void Changed(const DocumentChange& change);
  void SelectionMoved();

 private:
  std::u16string Removed(const DocumentChange& change) const;
  void TellText(Position at, std::u16string_view removed, std::u16string_view inserted);

  RichTextView& view_;
  std::optional<LeafList> known_;
  std::optional<Position> caret_;
  Selection selected_;
};

}  // namespace lumenote
