// Where the cells of a table row are, and the text in them.
#pragma once
#include <vector>

#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Lengths are pixels, from the text's left edge.
struct CellBox {
  int row = 0;      // as in `PieceCell`
  int parent = -1;  // likewise
  double left = 0;
  double right = 0;
  double padding = 0;  // beside the text, left and right

  double TextLeft() const { return left + padding; }
  double Room() const { return right - left - 2 * padding; }
};

/// A paragraph in a cell. Its last units end it or the cell; only the row's last text has none.
struct CellText {
  int end = 0;    // in the layout's text
  int units = 0;  // that end it: 1 for a cell, 2 for a paragraph
  int cell = 0;
  ParaId format = 0;
};

/// A row and the tables in its cells; nothing if there is no row. Cells are as wide as the rows'
/// definitions say, and share the rest of the line where these say nothing; tables in cells are no
/// wider than those.
struct RowCells {
  std::vector<CellBox> cells;   // as in `Piece`
  std::vector<CellText> texts;  // in text order
  std::vector<ItemId> rows;     // as in `Piece`

  bool Empty() const { return cells.empty(); }
  const CellBox& CellOf(const CellText& text) const {
    return cells[static_cast<std::size_t>(text.cell)];
  }
  /// The one that holds a unit of the layout's text.
  const CellText& TextAt(int index) const;
};

/// The row if there is one, which is always laid out whole; else what is wanted.
PieceSpan SpanOf(const Document& document, const PieceSpan& wanted);

/// The cells of a row's piece, whose span is known. Text composed where a cell begins belongs to
/// that cell.
RowCells RowCellsOf(const TextLayouter& layouter, const Document& document, const Piece& piece);

/// Where the texts end in a layout's text, which has `length` units; only its end without a row.
std::vector<int> EndsOf(const RowCells& row, int length);

}  // namespace lumenote
