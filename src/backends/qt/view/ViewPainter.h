// Paints the lines of a pane.
#pragma once
#include <QPainter>
#include <QPalette>

#include "backends/qt/text/QtLayouter.h"
#include "view/pane/ViewDamage.h"

namespace lumenote {

/// What is painted besides the document itself.
struct PaintState {
  ViewMarks marks;
  QPalette palette;  // in the group that shows the selection as it should be
};

class ViewPainter {
 public:
  /// `layouter` is the pane's.
  ViewPainter(TextPane& pane, QtLayouter& layouter, const PaintState& state)
      : pane_(pane), layouter_(layouter), state_(state) {}

  /// Paints `area` wholly, ground included.
  void Paint(QPainter& painter, const QRectF& area);

 private:
  void PaintPiece(QPainter& painter, const ShownPiece& item, const QRectF& area);
  void PaintSelectedBreak(QPainter& painter, const ShownPiece& item);
  void PaintBullet(QPainter& painter, const ShownPiece& item);
  void PaintSelection(QPainter& painter, const ShownPiece& item);
  void PaintSelectedText(QPainter& painter, const QtPiece& piece, QPointF origin, int line,
                         int start, int end);

  TextPane& pane_;
  QtLayouter& layouter_;
  const PaintState& state_;
};

}  // namespace lumenote
