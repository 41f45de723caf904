// What lies behind a paragraph's text: grounds and lines of table cells, borders and shading of
// paragraphs.
#pragma once
#include <cstdint>
#include <vector>

#include "view/backdrop/BackdropPainter.h"

namespace lumenote {

/// Differs wherever the backdrop of a piece does, at the same size; 0: there is none.
std::uint64_t BackdropLook(const Document& document, const Piece& piece);

/// The parts of a piece within `clip`. Neighbours with equal borders share theirs, as do rows.
std::vector<BackdropPart> BackdropOf(const TextLayouter& layouter, const Document& document,
                                     const Piece& piece, const PixelRect& clip,
                                     const BackdropColours& colours);

}  // namespace lumenote
