// Lays out a paragraph of the document, or a piece of one, with the fonts of this machine. The view
// and the line queries share it, so that they agree where lines begin.
#pragma once
#include <memory>

#include "backends/qt/text/CharStyles.h"
#include "backends/qt/text/Piece.h"

namespace lumenote {

/// What to lay out.
struct PieceSpan {
  Position from = 0;
  Position to = 0;          // the paragraph's end, or a limit in it
  bool complete = true;     // `to` ends a line; otherwise the last line begun is left out
  Position nextKnown = -1;  // where another piece begins: stop there if a line begins there too
};

class TextLayouter {
 public:
  CharStyles styles;
  Preedit preedit;

  /// Where lines wrap, in pixels from the text's left edge.
  double Width() const { return width_; }
  void Width(double pixels) { width_ = pixels; }
  /// Pixels of a length in the document, zoomed; nonsense is cut to what a page could hold.
  double Pixels(double twips) const;

  /// Null when an incomplete span holds no more than one line, so that its end is not known.
  std::unique_ptr<Piece> LayOut(const Document& document, const PieceSpan& span);

 private:
  double width_ = 400;
};

}  // namespace lumenote
