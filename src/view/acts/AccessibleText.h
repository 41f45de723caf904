// A view as seen by assistive programs.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "view/acts/TextUnits.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// Offsets are document positions, clipped to the document. Rectangles are in pane pixels. Must not
/// be used on a detached view.
class AccessibleText {
 public:
  explicit AccessibleText(NoteView& view) : view_(view) {}

  const Document& Content() const { return view_.Surface().Content(); }
  Position Length() const { return Content().Length(); }
  Position Caret() const { return view_.Surface().Caret(); }
  Selection Selected() const { return view_.Surface().Selected(); }
  bool IsLocked() const { return view_.IsLocked(); }
  /// From the first to the last character in the pane.
  Selection Visible() const;
  std::u16string Text(Selection range) const;
  /// The unit at (before, after) an offset; empty at the text's ends. A line is one on screen.
  Selection At(Position offset, TextUnit unit) const;
  Selection Before(Position offset, TextUnit unit) const;
  Selection Behind(Position offset, TextUnit unit) const;

  void Select(Position anchor, Position caret) { view_.Select(anchor, caret); }
  /// Replaces a range like typed text, unless the view is locked.
  void Replace(Selection range, std::u16string_view text);

  /// A character's rectangle; empty unless it is in or near the pane.
  std::optional<PixelRect> BoxOf(Position offset) const;
  /// What of a range is in the pane, line by line.
  std::vector<PixelRect> BoxesOf(Selection range) const;
  Position OffsetAt(PixelPoint point) const { return view_.Pane().PositionAt(point); }
  /// Scrolls to show as much of the range as possible, its start first.
  void Reveal(Selection range);

  /// The format run around an offset, within one paragraph.
  struct Run {
    Selection range;
    CharFormat format;
    Alignment alignment = Alignment::Left;
  };
  std::optional<Run> RunAt(Position offset) const;

 private:
  Selection LineAt(Position offset) const;

  NoteView& view_;
};

}  // namespace lumenote
