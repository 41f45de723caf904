// Layout without fonts: every character is half as wide as it is high.
#pragma once
#include <functional>
#include <vector>

#include "document/kept/Kept.h"
#include "view/layout/PieceBreaker.h"

namespace lumenote {

/// A character of ten points is 20/3 pixels wide in a line of 16. A tab goes to the next multiple
/// of half an inch; lines break behind blanks, tabs and hyphens, a longer word is cut; blanks at a
/// line's end hang over; every alignment is laid out flush left.
class FixedLayouter final : public TextLayouter {
 public:
  /// The size of the box that stands for a character of what is kept; without it, such a character
  /// is one like the others.
  std::function<PixelSize(const Kept&)> boxOf;
  /// The right edges, in pixels, of a table row's cells, told by its break; without it, or where
  /// there are none, the cells are text with tabs between them.
  std::function<std::vector<double>(const Kept&)> cellsOf;

  std::unique_ptr<Piece> LayOut(const Document& document, const PieceSpan& span) override;
  FontExtent ExtentOf(const Document& document, const CharFormat& format) override;
};

/// Breaks lines by a layouter of its own.
class FixedBreaker final : public LineBreaker {
 public:
  /// `width`: where lines wrap, in twips.
  explicit FixedBreaker(double width) { layouter_.Width(width / kTwipsInPixel); }

  std::vector<Position> Break(const Document& document, Position from, Position to) override {
    return breaker_.Break(document, from, to);
  }
  float XOf(const Document& document, Position lineStart, Position position) override {
    return breaker_.XOf(document, lineStart, position);
  }
  Position AtX(const Document& document, Position lineStart, Position lineEnd, float x) override {
    return breaker_.AtX(document, lineStart, lineEnd, x);
  }

 private:
  FixedLayouter layouter_;
  PieceBreaker breaker_{layouter_};
};

}  // namespace lumenote
