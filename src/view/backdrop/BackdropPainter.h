// Cuts grounds and lines into areas of one colour.
#pragma once
#include <vector>

#include "view/layout/BorderRoom.h"

namespace lumenote {

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

/// Collects the parts of a piece.
class BackdropPainter {
 public:
  BackdropPainter(const TextLayouter& layouter, const Document& document, const PixelRect& clip,
                  const BackdropColours& colours)
      : layouter_(layouter),
        head_(document.Formats().heads[document.Mark().head]),
        clip_(clip),
        colours_(colours) {}

  void Shade(const PixelRect& area, const Shading& shading);
  void Across(const BorderLine& line, double left, double right, double top);
  void Down(const BorderLine& line, double top, double bottom, double left);
  /// A line that marks a cell without lines of its own.
  void Grid(const PixelRect& area);
  bool ShowsGrid() const { return colours_.grid; }
  double Thickness(const BorderLine& line) const { return ThicknessOf(layouter_, line); }

  std::vector<BackdropPart> parts;

 private:
  PixelRect Clipped(const PixelRect& area) const;
  void Fill(const PixelRect& area, Colour colour);
  void Line(const PixelRect& area, Colour colour);
  void Strokes(const BorderLine& line, const PixelRect& area, bool across);
  void Dashes(PixelRect area, bool across, double dash, Colour colour);
  Colour InkOf(const BorderLine& line) const;

  const TextLayouter& layouter_;
  const KeptHead& head_;
  const PixelRect clip_;
  const BackdropColours& colours_;
};

}  // namespace lumenote
