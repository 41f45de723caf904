// Lays out paragraphs of the document with the fonts of a machine: what every backend realises.
#pragma once
#include <memory>
#include <string>

#include "view/layout/Piece.h"

namespace lumenote {

/// At 96 dots per inch, unzoomed.
inline constexpr double kTwipsInPixel = 15;

/// What to lay out: part of one paragraph, from a line's first character on.
struct PieceSpan {
  Position from = 0;
  Position to = 0;          // the paragraph's end, or a limit in it
  bool complete = true;     // `to` ends a line; otherwise the last line begun is left out
  Position nextKnown = -1;  // where another piece begins: stop there if a line begins there too
};

/// Text being composed by an input method, shown at a position of the document.
struct Composition {
  Position at = -1;
  std::u16string text;
  int caret = 0;  // units from the start of `text`
};

/// How far text of a format reaches from the line's baseline, in pixels.
struct FontExtent {
  double ascent = 0;  // above the font's own baseline
  double descent = 0;
  double raise = 0;  // of that baseline above the line's
};

/// The view and the line queries share it, so that they agree where lines begin. Whoever changes
/// one of its values drops what was laid out before.
class TextLayouter {
 public:
  virtual ~TextLayouter() = default;

  /// Where lines wrap, in pixels from the text's left edge.
  double Width() const { return width_; }
  void Width(double pixels) { width_ = pixels; }
  double Zoom() const { return zoom_; }
  void Zoom(double factor);
  const Composition& Composed() const { return composed_; }
  void Composed(Composition text) { composed_ = std::move(text); }
  /// Pixels of a length in the document, zoomed; nonsense is cut to what a page could hold.
  double Pixels(double twips) const;

  /// Null when an incomplete span holds no more than one line, so that its end is not known.
  virtual std::unique_ptr<Piece> LayOut(const Document& document, const PieceSpan& span) = 0;
  /// Of a character in a format that no text need have yet.
  virtual FontExtent ExtentOf(const Document& document, const CharFormat& format) = 0;

 protected:
  /// After a change of the zoom: what was made of formats is forgotten.
  virtual void Zoomed() {}
  /// Fills in where the piece lies; true when some of the text being composed stands in it.
  bool Open(Piece& piece, const Document& document, const PieceSpan& span) const;

 private:
  double width_ = 400;
  double zoom_ = 1;
  Composition composed_;
};

}  // namespace lumenote
