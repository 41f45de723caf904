// What lies behind a paragraph's text: grounds and lines of table cells, borders and shading of
// paragraphs.
#pragma once
#include <cstdint>
#include <limits>
#include <vector>

#include "view/backdrop/BackdropPainter.h"

namespace lumenote {

/// Differs wherever the backdrop of a piece does, at the same size; 0: there is none.
std::uint64_t BackdropLook(const Document& document, const Piece& piece);

/// What a page shows of a row, from the row's top. Where it is cut, and at the top of a page (0),
/// it has lines.
struct RowOnPage {
  double top = -std::numeric_limits<double>::infinity();
  double bottom = std::numeric_limits<double>::infinity();
};

/// The parts of a piece within `clip`. Neighbours with equal borders share theirs, as do rows.
std::vector<BackdropPart> BackdropOf(const TextLayouter& layouter, const Document& document,
                                     const Piece& piece, const PixelRect& clip,
                                     const BackdropColours& colours, const RowOnPage& page = {});

}  // namespace lumenote
