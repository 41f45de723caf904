// Paints laid-out pieces.
#pragma once
#include <QPainter>
#include <QPalette>

#include "backends/qt/text/QtLayouter.h"
#include "view/backdrop/Backdrop.h"

namespace lumenote {

/// On a screen or on paper. Each piece is painted from behind to the front: backdrop, text, then
/// what is over it; `origin` is where the text's left edge and the piece's top are.
class PiecePainter {
 public:
  /// All must outlive the painter. `palette` has the colours of text, ground and selection.
  PiecePainter(QPainter& painter, const Document& document, QtLayouter& layouter,
               const QPalette& palette)
      : painter_(painter), document_(document), layouter_(layouter), palette_(palette) {}

  /// `page`: what it shows of a row; null on a screen, where lines mark table cells without lines
  /// of their own.
  void PaintBackdrop(const Piece& piece, QPointF origin, const QRectF& area,
                     const RowOnPage* page = nullptr);
  void PaintText(const QtPiece& piece, QPointF origin, const QRectF& area);
  /// Boxes and decorations; boxes in `selection` are tinted.
  void PaintOver(const QtPiece& piece, QPointF origin, const QRectF& area, Selection selection);

 private:
  void PaintBullets(const QtPiece& piece, QPointF origin);
  void PaintBoxes(const QtPiece& piece, QPointF origin, const QRectF& area, Selection selection);
  /// The raised number of a footnote.
  void PaintNumber(int number, const QRectF& place, CharId format, bool selected);

  QPainter& painter_;
  const Document& document_;
  QtLayouter& layouter_;
  const QPalette& palette_;
};

}  // namespace lumenote
