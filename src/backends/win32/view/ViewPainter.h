// Paints the lines of a pane with GDI.
#pragma once
#include "backends/win32/text/UniscribeLayouter.h"
#include "backends/win32/text/UniscribePiece.h"
#include "view/pane/ViewDamage.h"

namespace lumenote {

/// The colours of a surface.
struct ViewColours {
  COLORREF ground = 0;
  COLORREF ink = 0;
  COLORREF highlight = 0;
  COLORREF highlightInk = 0;
  bool plain = false;  // high contrast: no colours of the note's own

  static ViewColours OfSystem(bool enabled);
};

class ViewPainter {
 public:
  /// `layouter` must be the pane's.
  ViewPainter(TextPane& pane, UniscribeLayouter& layouter, const ViewMarks& marks,
              const ViewColours& colours)
      : pane_(pane), layouter_(layouter), marks_(marks), colours_(colours) {}

  /// Paints all of `area`, ground included, off screen first.
  void Paint(HDC dc, const RECT& area);

 private:
  /// Where a line's text is: its piece's upper left corner, and its number in it.
  struct LinePlace {
    const UniscribePiece& piece;
    double left;
    double top;
    std::size_t line;

    const PieceLine& Box() const { return piece.lines[line]; }
  };

  void PaintArea(HDC dc, const PixelRect& area);
  void PaintPiece(HDC dc, const ShownPiece& item, const PixelRect& area);
  void PaintBackdrop(HDC dc, const ShownPiece& item, const PixelRect& area) const;
  void PaintBoxes(HDC dc, const ShownPiece& item, const PixelRect& area) const;
  /// The raised number of a footnote.
  void PaintNumber(HDC dc, int number, const PixelRect& place, CharId format, bool selected) const;
  void PaintGrounds(HDC dc, const LinePlace& place, Selection selected) const;
  void PaintText(HDC dc, const LinePlace& place, Selection selected) const;
  void FillUnits(HDC dc, const LinePlace& place, const LinePart& part, Selection units,
                 COLORREF colour) const;
  void DrawUnits(HDC dc, const LinePlace& place, const LinePart& part, Selection units,
                 COLORREF ink) const;
  void PaintBullets(HDC dc, const ShownPiece& item) const;
  const CharStyle& StyleOf(const GlyphRun& run) const {
    return layouter_.styles.Of(pane_.Content(), run.format);
  }

  TextPane& pane_;
  UniscribeLayouter& layouter_;
  const ViewMarks& marks_;
  const ViewColours& colours_;
};

}  // namespace lumenote
