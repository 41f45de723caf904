// The lines drawn over and under text.
#pragma once
#include <span>
#include <string_view>
#include <vector>

#include "view/layout/CharLook.h"
#include "view/layout/Piece.h"

namespace lumenote {

/// How to draw an underline.
struct Stroke {
  std::span<const double> dashes{};  // lengths and gaps in units of the pen's width; none: solid
  double weight = 1;
  int lines = 1;
  bool wave = false;
};

/// Something drawn over or under units `start`..`end` of the layout's text.
struct Decoration {
  int start = 0;
  int end = 0;
  Underline underline = Underline::None;
  int strikes = 0;
  double ascent = 0;  // of the font, pixels
  double descent = 0;
  double raise = 0;  // of its baseline above the line's
  Colour ink = kAutoColour;
};

/// What a run of that look needs, over `start`..`end`; empty if nothing.
std::vector<Decoration> DecorationsOf(const CharLook& look, int start, int end);

/// The extents of a line's text, at least those of the decorations in it.
void Extend(const std::vector<Decoration>& decorations, const PieceLine& line, double& ascent,
            double& descent);

/// Draws in the backend's terms.
class Pencil {
 public:
  virtual ~Pencil() = default;
  /// `width` is that of the pen, in pixels.
  virtual void Line(PixelPoint from, PixelPoint to, const Stroke& stroke, double width,
                    Colour ink) = 0;
};

/// The decorations of a piece. `origin` is where the text's left edge meets the piece's top, `text`
/// is the layout's.
void DrawDecorations(Pencil& pencil, const Piece& piece, std::u16string_view text,
                     const std::vector<Decoration>& decorations, PixelPoint origin);

}  // namespace lumenote
