// The boxes that stand in the text for pictures, objects and drawings, and the numbers of
// footnotes.
#pragma once
#include <vector>

#include "view/layout/RowCells.h"

namespace lumenote {

/// A footnote's number in its box, in parts of the box's height: the font's height, and the
/// distance of the baseline from the top.
inline constexpr double kNumberHeight = 0.8;
inline constexpr double kNumberBaseline = 0.6;

/// Those in the text of a piece, which has `length` units, its runs already and the cells of `row`,
/// if any. Pictures are as large as the source says, but scaled down to what the paragraph
/// or cell has room for; a footnote without a number has no box.
std::vector<InlineBox> BoxesIn(const TextLayouter& layouter, const Document& document,
                               const Piece& piece, const RowCells& row, int length);

/// The ascent of a line's text, at least that of the boxes in it.
void Extend(const std::vector<InlineBox>& boxes, const PieceLine& line, double& ascent);

}  // namespace lumenote
