// Breaks lines for the line queries with the view's own layout, and nothing on screen.
#pragma once
#include "document/LineTable.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Distances are pixels from the text's left edge. Text being composed is not the document's, and
/// counts for nothing here.
class PieceBreaker final : public LineBreaker {
 public:
  /// `layouter`, which the view of the same surface uses too, outlives the breaker.
  explicit PieceBreaker(TextLayouter& layouter) : layouter_(layouter) {}

  std::vector<Position> Break(const Document& document, Position from, Position to) override;
  float XOf(const Document& document, Position lineStart, Position position) override;
  Position AtX(const Document& document, Position lineStart, Position lineEnd, float x) override;

 private:
  std::unique_ptr<Piece> LayOut(const Document& document, const PieceSpan& span);
  std::unique_ptr<Piece> LineFrom(const Document& document, Position lineStart);

  TextLayouter& layouter_;
};

}  // namespace lumenote
