// Where a range of text lies on the screen: what a selection fills, what assistive programs frame.
#pragma once
#include <optional>
#include <vector>

#include "view/pane/TextPane.h"

namespace lumenote {

/// The part of a line that a range covers.
struct RangeBox {
  int line = 0;   // of the piece
  int start = 0;  // in the layout's text
  int end = 0;
  PixelRect box;  // in the pane, as high as the line
};

/// From line to line of a piece that `pane` shows. In text of both directions a box reaches from
/// the caret at the start to the one at the end.
std::vector<RangeBox> BoxesOf(const TextPane& pane, const ShownPiece& shown, Selection range);

/// The stripe after the last line that stands for the paragraph's break, if the range covers it.
std::optional<PixelRect> BreakBoxOf(const TextPane& pane, const ShownPiece& shown, Selection range);

}  // namespace lumenote
