// Where the cells of a table row are.
#pragma once
#include <vector>

#include "view/layout/TextLayouter.h"

namespace lumenote {

struct CellBox {
  Position end =
      0;            // where the next cell's text begins; a cell's last unit is the tab that ends it
  double left = 0;  // pixels from the text's left edge
  double right = 0;
  double padding = 0;  // beside the text, left and right

  double TextLeft() const { return left + padding; }
  double Room() const { return right - left - 2 * padding; }
};

/// The cells, from left to right, of the row that the paragraph at `position` ends; empty if it
/// ends none. They are as wide as the row's definition says, and share the rest of the line where
/// it says nothing. A row of several paragraphs lies in the last one with its last cells only.
std::vector<CellBox> RowCellsAt(const TextLayouter& layouter, const Document& document,
                                Position position);

/// What is kept at the break of a row, which the paragraph at `position` ends; null if it ends
/// none.
const Kept* RowAt(const Document& document, Position position);

/// The paragraph if it is a row, which is always laid out whole; else what is wanted.
PieceSpan SpanOf(const std::vector<CellBox>& cells, const Document& document,
                 const PieceSpan& wanted);

/// Where cells end in the text of their row's piece, which has `length` units; only the text's end
/// if there are none. Text composed where a cell begins belongs to that cell.
std::vector<int> EndsOf(const std::vector<CellBox>& cells, const Piece& row, int length);

}  // namespace lumenote
