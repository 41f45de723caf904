// Where the cells of a table row are.
#pragma once
#include <vector>

#include "view/layout/TextLayouter.h"

namespace lumenote {

struct RowCell {
  Position end =
      0;            // where the next cell's text begins; a cell's last unit is the tab that ends it
  double left = 0;  // pixels from the text's left edge
  double right = 0;
};

/// The cells, from left to right, of the row that the paragraph at `position` ends; empty if it
/// ends none. They are as wide as the row's definition says, and share the rest of the line where
/// it says nothing. A row of several paragraphs lies in the last one with its last cells only.
std::vector<RowCell> RowCellsAt(const TextLayouter& layouter, const Document& document,
                                Position position);

/// The unit behind a cell in the text of the row's piece; `last` tells the row's last cell. Text
/// composed where a cell begins belongs to that cell.
int EndOf(const RowCell& cell, const Piece& row, bool last);

}  // namespace lumenote
