// What lies behind a paragraph's text: grounds and lines of table cells, borders and shading of
// paragraphs.
#pragma once
#include <cstdint>
#include <vector>

#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Room that borders need above and below a paragraph's lines, in pixels.
struct BorderRoom {
  double above = 0;
  double below = 0;
};
BorderRoom BorderRoomOf(const TextLayouter& layouter, const FormatTables& tables,
                        const ParaFormat& format);

/// Differs wherever the backdrop of a piece does, at the same size; 0: there is none.
std::uint64_t BackdropLook(const Document& document, const Piece& piece);

/// An area filled with one colour, to be painted in order; in pixels from the text's left edge and
/// the piece's top.
struct BackdropPart {
  PixelRect area;
  Colour colour = 0;
  bool line = false;  // thin: its thickness is not clipped
};

/// The colours of a surface.
struct BackdropColours {
  Colour ink = 0;
  Colour ground = 0xFFFFFF;
  bool plain = false;  // no colours of the note's own
  bool grid = true;    // lines show where cells without lines of their own are
};

/// The parts of a piece within `clip`. Neighbours with equal borders share theirs, as do rows.
std::vector<BackdropPart> BackdropOf(const TextLayouter& layouter, const Document& document,
                                     const Piece& piece, const PixelRect& clip,
                                     const BackdropColours& colours);

}  // namespace lumenote
