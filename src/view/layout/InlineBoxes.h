// The boxes that stand in the text for pictures, objects and drawings.
#pragma once
#include <vector>

#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Those in the text of a piece, which has its runs already and is `length` units long: as large as
/// the source says, but scaled down to what the paragraph has room for.
std::vector<InlineBox> BoxesIn(const TextLayouter& layouter, const Document& document,
                               const Piece& piece, int length);

/// The ascent of a line's text, at least that of the boxes in it.
void Extend(const std::vector<InlineBox>& boxes, const PieceLine& line, double& ascent);

}  // namespace lumenote
