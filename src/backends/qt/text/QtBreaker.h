// Breaks lines for the line queries with the view's own layout, and nothing on screen.
#pragma once
#include "backends/qt/text/TextLayouter.h"
#include "document/LineTable.h"

namespace lumenote {

/// Distances are pixels from the text's left edge.
class QtBreaker final : public LineBreaker {
 public:
  /// `layouter`, which the view of the same surface uses too, outlives the breaker.
  explicit QtBreaker(TextLayouter& layouter) : layouter_(layouter) {}

  std::vector<Position> Break(const Document& document, Position from, Position to) override;
  float XOf(const Document& document, Position lineStart, Position position) override;
  Position AtX(const Document& document, Position lineStart, Position lineEnd, float x) override;

 private:
  std::unique_ptr<Piece> LineFrom(const Document& document, Position lineStart);

  TextLayouter& layouter_;
};

}  // namespace lumenote
