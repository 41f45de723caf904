// The laid-out document seen through a rectangle: where a position is, what lies at a point.
#pragma once
#include <QRectF>
#include <optional>

#include "backends/qt/text/ScrollModel.h"
#include "surface/DocumentSurface.h"

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

  QSizeF Size() const { return size_; }
  /// Lays out anew when the wrap width changes; the line at the top stays there.
  void Resize(QSizeF size);
  /// The surface's right margin or the zoom has changed.
  void Rewrap();
  void Zoom(double factor);
  double Zoom() const { return layouter_.styles.Zoom(); }
  void Composing(const Preedit& preedit);

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
  Position PositionAt(QPointF point);
  /// The character shown at a point; -1 where there is none.
  Position CharacterAt(QPointF point);
  /// The line that holds a position, as wide as the pane; empty unless it is in the pane or near.
  std::optional<QRectF> LineAt(Position position);
  /// The line of the text that holds a position, wherever that is.
  Line ShownLine(Position position);
  /// The caret at a position, in the height of what would be typed there; empty as above.
  std::optional<QRectF> CaretAt(Position position);
  /// The part of the lines `from`..`to` that is in the pane.
  QRectF LinesBetween(Position from, Position to);
  void Reveal(Position position);
  int LinesPerPage();

 private:
  static constexpr double kCaretWidth = 1;

  struct LineSpot {
    const Piece* piece;
    int line;
  };
  LineSpot LineNear(double y);
  double WrapWidth() const;
  void RevealAcross(Position position);

  DocumentSurface& surface_;
  TextLayouter& layouter_;
  LayoutCache cache_{surface_.Content(), layouter_};
  ScrollModel scroll_{surface_.Content(), cache_};
  QSizeF size_;
  double margin_ = 3;
  double scrolledRight_ = 0;
};

}  // namespace lumenote
