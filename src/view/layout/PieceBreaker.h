// Breaks lines for line queries with the view's own layout, but off screen.
#pragma once
#include "document/LineTable.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Distances are pixels from the text's left edge. Ignores composed text, which is not part of the
/// document.
class PieceBreaker final : public LineBreaker {
 public:
  /// `layouter`, shared with the view of the same surface, must outlive the breaker.
  explicit PieceBreaker(TextLayouter& layouter) : layouter_(layouter) {}

  std::vector<Position> Break(const Document& document, Position from, Position to) override;
  float XOf(const Document& document, Position lineStart, Position position) override;
  Position AtX(const Document& document, Position lineStart, Position lineEnd, float x) override;
  std::optional<CellLine> FindCellLine(const Document& document, Position position, CellStep step,
                                       float x) override;

 private:
  std::unique_ptr<Piece> LayOut(const Document& document, const PieceSpan& span);
  std::unique_ptr<Piece> LineFrom(const Document& document, Position lineStart);

  TextLayouter& layouter_;
};

}  // namespace lumenote
