// Lays out paragraphs with the machine's fonts; realised by each backend.
#pragma once
#include <limits>
#include <memory>
#include <string>
#include <unordered_map>

#include "base/Twips.h"
#include "document/NoteNumbers.h"
#include "document/pictures/PictureFrame.h"
#include "view/layout/Piece.h"

namespace lumenote {

/// The largest page, in twips: 22 inches.
inline constexpr double kMaxTwips = 31680;

/// The part of a paragraph to lay out, from a line start on.
struct PieceSpan {
  Position from = 0;
  Position to = 0;          // the paragraph's end, or a limit inside it
  bool complete = true;     // `to` ends a line; otherwise the last, unfinished line is omitted
  Position nextKnown = -1;  // start of the next known piece: stop there if a line starts there
};

/// Text being composed by an input method, shown at a position of the document.
struct Composition {
  Position at = -1;
  std::u16string text;
  int caret = 0;  // units from the start of `text`
};

/// How far text of a format extends from the line's baseline, in pixels.
struct FontMetrics {
  double ascent = 0;  // above the font's own baseline
  double descent = 0;
  double raise = 0;  // of that baseline above the line's
};

/// Shared by the view and the line queries, so that both agree on line starts. After changing one
/// of its values the caller must discard all layout.
class TextLayouter {
 public:
  virtual ~TextLayouter() = default;

  /// The wrap width, in pixels from the text's left edge.
  double Width() const { return width_; }
  void Width(double pixels) { width_ = pixels; }
  double Zoom() const { return zoom_; }
  void Zoom(double factor);
  /// Pixels of the device in one at 96 dots per inch; the zoom does not count.
  double Scale() const { return scale_; }
  void Scale(double factor);
  /// The most that a box in a line may be high, in twips.
  double Tallest() const { return tallest_; }
  void Tallest(double twips) { tallest_ = twips; }
  /// How far a table may reach, in pixels from the text's left edge; a wider one gets narrower.
  double WidestTable() const { return widestTable_; }
  void WidestTable(double pixels) { widestTable_ = pixels; }
  const Composition& Composed() const { return composed_; }
  void Composed(Composition text) { composed_ = std::move(text); }
  /// Those that the boxes of footnotes show.
  NoteNumbers& Notes() const { return notes_; }
  /// In zoomed pixels of the device.
  double TwipsPerPixel() const { return kTwipsPerPixel / (zoom_ * scale_); }
  /// That of a boxed item, read once.
  const PictureFrame& FrameOf(const FormatTables& tables, ItemId item) const;
  /// Converts a length in the document to zoomed pixels of the device; clamps it to the largest
  /// page.
  double Pixels(double twips) const;

  /// Null if an incomplete span has at most one line, whose end is thus unknown.
  std::unique_ptr<Piece> LayOut(const Document& document, const PieceSpan& span);
  /// For a format that no text need have.
  virtual FontMetrics MetricsOf(const Document& document, const CharFormat& format) = 0;

 protected:
  /// Realises `LayOut`. The same text at the same width and zoom must give the same lines, whatever
  /// span of its paragraph is asked for: the screen, the line queries and the caret rely on it.
  virtual std::unique_ptr<Piece> Make(const Document& document, const PieceSpan& span) = 0;
  /// Called after a change of zoom or scale: discard everything derived from formats.
  virtual void Zoomed() {}
  /// Initialises the piece's position; returns true if it contains composed text.
  bool Open(Piece& piece, const Document& document, const PieceSpan& span) const;

 private:
  double width_ = 400;
  double zoom_ = 1;
  double scale_ = 1;
  double tallest_ = kMaxTwips;
  double widestTable_ = std::numeric_limits<double>::infinity();
  Composition composed_;
  mutable NoteNumbers notes_;                                // a cache
  mutable std::unordered_map<ItemId, PictureFrame> frames_;  // likewise
};

}  // namespace lumenote
