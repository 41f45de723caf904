// Layout without fonts: each character is half as wide as it is high.
#pragma once
#include <vector>

#include "base/Twips.h"
#include "view/layout/PieceBreaker.h"

namespace lumenote {

/// A ten-point character is 20/3 pixels wide, in a line of 16 pixels. Tabs advance to the next
/// multiple of half an inch; lines break after spaces, tabs and hyphens, and inside a word that is
/// too long; trailing spaces hang; every alignment is set flush left; cells of a row lie beside
/// each other.
class FixedLayouter final : public TextLayouter {
 public:
  FontMetrics MetricsOf(const Document& document, const CharFormat& format) override;

 private:
  std::unique_ptr<Piece> Make(const Document& document, const PieceSpan& span) override;
};

/// Breaks lines with a layouter of its own.
class FixedBreaker final : public LineBreaker {
 public:
  /// `width` is the wrap width in twips.
  explicit FixedBreaker(double width) { layouter_.Width(width / kTwipsPerPixel); }

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
