// A view as seen by assistive programs.
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "view/pane/NoteView.h"

namespace lumenote {

enum class TextUnit { Character, Word, Sentence, Line, Paragraph, All };

/// Offsets are document positions, clipped to the document. Rectangles are in pane pixels. Must not
/// be used on a detached view.
class AccessibleText {
 public:
  /// Returns the bounds of the unit at an index of some text: a character, word or sentence by the
  /// system's implementation of Unicode's rules.
  using Boundaries = std::function<Selection(TextUnit, std::u16string_view text, int index)>;

  AccessibleText(NoteView& view, Boundaries boundaries)
      : view_(view), boundaries_(std::move(boundaries)) {}

  std::u16string Text(Selection range) const;
  /// The unit at (before, after) an offset; empty at the text's ends.
  Selection At(Position offset, TextUnit unit) const;
  Selection Before(Position offset, TextUnit unit) const;
  Selection Behind(Position offset, TextUnit unit) const;

  void Select(Position anchor, Position caret) { view_.Select(anchor, caret); }
  /// Replaces a range like typed text, unless the view is locked.
  void Replace(Selection range, std::u16string_view text);

  /// A character's rectangle; empty unless it is in or near the pane.
  std::optional<PixelRect> BoxOf(Position offset) const;
  Position OffsetAt(PixelPoint point) const { return view_.Pane().PositionAt(point); }
  /// Scrolls to show as much of the range as possible, its start first.
  void Reveal(Selection range);

  /// The format run around an offset.
  struct Run {
    Selection range;
    CharFormat format;
  };
  std::optional<Run> RunAt(Position offset) const;

 private:
  const Document& Content() const { return view_.Surface().Content(); }
  Selection ParagraphAt(Position offset) const;
  Selection LineAt(Position offset) const;
  Selection UnitIn(Selection paragraph, Position offset, TextUnit unit) const;

  NoteView& view_;
  Boundaries boundaries_;
};

}  // namespace lumenote
