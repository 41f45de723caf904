// The laid-out document seen through a rectangle: where a position is, what lies at a point.
#pragma once
#include <optional>

#include "surface/DocumentSurface.h"
#include "view/pane/ScrollModel.h"

namespace lumenote {

/// Coordinates are pixels from the pane's upper left corner. Knows no widget.
class TextPane {
 public:
  /// Both outlive the pane.
  TextPane(DocumentSurface& surface, TextLayouter& layouter)
      : surface_(surface), layouter_(layouter) {}

  DocumentSurface& Surface() const { return surface_; }
  const Document& Content() const { return surface_.Content(); }
  TextLayouter& Layouter() { return layouter_; }
  LayoutCache& Cache() { return cache_; }
  ScrollModel& Scroll() { return scroll_; }

  PixelSize Size() const { return size_; }
  /// Lays out anew when the wrap width changes; the line at the top stays there.
  void Resize(PixelSize size);
  /// The surface's right margin or the zoom has changed.
  void Rewrap();
  void Zoom(double factor);
  double Zoom() const { return layouter_.Zoom(); }
  void Compose(Composition text);

  /// Room beside the text.
  void Margin(double pixels) { margin_ = pixels; }
  /// Where the text's left edge is.
  double TextLeft() const { return margin_ - scrolledRight_; }
  double ScrolledRight() const { return scrolledRight_; }
  void ScrolledRight(double pixels) { scrolledRight_ = pixels; }
  /// How far it can be scrolled to the right.
  double MostRight() const;

  std::vector<ShownPiece> Visible() { return scroll_.Visible(); }
  /// The caret position nearest to a point, which may lie outside.
  Position PositionAt(PixelPoint point);
  /// The character shown at a point; -1 where there is none.
  Position CharacterAt(PixelPoint point);
  /// The line that holds a position, as wide as the pane; empty unless it is in the pane or near.
  std::optional<PixelRect> LineAt(Position position);
  /// The line of the text that holds a position, wherever that is.
  Line ShownLine(Position position);
  /// The caret at a position, in the height of what would be typed there; empty as above.
  std::optional<PixelRect> CaretAt(Position position);
  void Reveal(Position position);
  int LinesPerPage();

 private:
  static constexpr double kCaretWidth = 1;

  struct LineSpot {
    const Piece* piece;
    int line;
  };
  LineSpot LineNear(PixelPoint point);
  double WrapWidth() const;
  void RevealAcross(Position position);

  DocumentSurface& surface_;
  TextLayouter& layouter_;
  LayoutCache cache_{surface_.Content(), layouter_};
  ScrollModel scroll_{surface_.Content(), cache_};
  PixelSize size_;
  double margin_ = 3;
  double scrolledRight_ = 0;
};

}  // namespace lumenote
