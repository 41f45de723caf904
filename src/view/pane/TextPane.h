// The laid-out document seen through a rectangle; maps positions to points and back.
#pragma once
#include <optional>

#include "surface/DocumentSurface.h"
#include "view/pane/ScrollModel.h"

namespace lumenote {

/// Coordinates are pixels from the pane's upper left corner. Independent of any widget.
class TextPane {
 public:
  /// Both must outlive the pane.
  TextPane(DocumentSurface& surface, TextLayouter& layouter)
      : surface_(surface), layouter_(layouter) {}

  DocumentSurface& Surface() const { return surface_; }
  const Document& Content() const { return surface_.Content(); }
  TextLayouter& Layouter() { return layouter_; }
  LayoutCache& Cache() { return cache_; }
  ScrollModel& Scroll() { return scroll_; }

  PixelSize Size() const { return size_; }
  /// Lays out again if the wrap width changes, keeping the top line in place.
  void Resize(PixelSize size);
  /// The surface's right margin or the zoom has changed.
  void Rewrap();
  void Zoom(double factor);
  double Zoom() const { return layouter_.Zoom(); }
  void Compose(Composition text);

  /// Space beside the text.
  void Margin(double pixels) { margin_ = pixels; }
  /// The width in which lines are broken, in twips.
  double TextWidth() const;
  /// The text's left edge.
  double TextLeft() const { return margin_ - scrolledRight_; }
  double ScrolledRight() const { return scrolledRight_; }
  void ScrolledRight(double pixels) { scrolledRight_ = pixels; }
  /// Maximum horizontal scroll offset.
  double MostRight() const;

  std::vector<ShownPiece> Visible() { return scroll_.Visible(); }
  /// The caret position nearest to a point, which may lie outside.
  Position PositionAt(PixelPoint point);
  /// The character at a point; -1 if there is none.
  Position CharacterAt(PixelPoint point);
  /// The rectangle of the line that holds a position, across the pane; empty unless in or near the
  /// pane.
  std::optional<PixelRect> LineAt(Position position);
  /// The line that holds a position, anywhere in the text.
  Line ShownLine(Position position);
  /// The same up to where the next one begins, in a table within a cell.
  Selection CellLine(Position position);
  /// The caret at a position, as high as text typed there; empty as above.
  std::optional<PixelRect> CaretAt(Position position);
  /// The caret before a unit of the text that is being composed, or of its end; empty as above, and
  /// if none is.
  std::optional<PixelRect> ComposedCaretAt(int unit);
  void Reveal(Position position);
  int LinesPerPage();

 private:
  static constexpr double kCaretWidth = 1;

  struct LineHit {
    const Piece* piece;
    int line;
  };
  LineHit LineNear(PixelPoint point);
  PixelRect CaretIn(const Piece& piece, double top, int index);
  double WrapWidth() const;
  void RevealAcross(Position position);
  Line LineIn(const Piece& piece, int first, int last) const;
  bool AgreesWithLineTable(const Piece& piece, const Line& line);

  DocumentSurface& surface_;
  TextLayouter& layouter_;
  LayoutCache cache_{surface_.Content(), layouter_};
  ScrollModel scroll_{surface_.Content(), cache_};
  PixelSize size_;
  double margin_ = 3;
  double scrolledRight_ = 0;
};

}  // namespace lumenote
