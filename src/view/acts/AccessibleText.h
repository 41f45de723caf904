// A view as assistive programs read and edit it.
#pragma once
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "view/pane/NoteView.h"

namespace lumenote {

enum class TextUnit { Character, Word, Sentence, Line, Paragraph, All };

/// Offsets are positions of the document; one outside it is clipped. Rectangles are pixels of the
/// pane. Nothing may be asked of a detached view.
class AccessibleText {
 public:
  /// Finds where a unit begins and ends around an index in some text: what the system, by the rules
  /// of Unicode, takes for a character, a word or a sentence.
  using Boundaries = std::function<Selection(TextUnit, std::u16string_view text, int index)>;

  AccessibleText(NoteView& view, Boundaries boundaries)
      : view_(view), boundaries_(std::move(boundaries)) {}

  std::u16string Text(Selection range) const;
  /// The unit at an offset, and those before and behind it; empty at the text's ends.
  Selection At(Position offset, TextUnit unit) const;
  Selection Before(Position offset, TextUnit unit) const;
  Selection Behind(Position offset, TextUnit unit) const;

  void Select(Position anchor, Position caret) { view_.Select(anchor, caret); }
  /// Types `text` in the place of a range, unless the view is locked.
  void Replace(Selection range, std::u16string_view text);

  /// Where a character is; empty unless it is in the pane or near.
  std::optional<PixelRect> BoxOf(Position offset) const;
  Position OffsetAt(PixelPoint point) const { return view_.Pane().PositionAt(point); }
  /// So that as much of the range is seen as can be, its beginning above all.
  void Reveal(Selection range);

  /// Characters of one format around an offset.
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
