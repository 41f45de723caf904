// Paints the lines of a pane.
#pragma once
#include <QPainter>
#include <QPalette>

#include "backends/qt/text/QtLayouter.h"
#include "view/pane/RangeBoxes.h"
#include "view/pane/ViewDamage.h"

namespace lumenote {

/// What to paint besides the document.
struct PaintState {
  ViewMarks marks;
  QPalette palette;  // with the colour group for the selection
};

class ViewPainter {
 public:
  /// `layouter` must be the pane's.
  ViewPainter(TextPane& pane, QtLayouter& layouter, const PaintState& state)
      : pane_(pane), layouter_(layouter), state_(state) {}

  /// Paints all of `area`, background included.
  void Paint(QPainter& painter, const QRectF& area);

 private:
  void PaintPiece(QPainter& painter, const ShownPiece& item, const QRectF& area);
  void PaintSelection(QPainter& painter, const ShownPiece& item);
  void PaintSelectedText(QPainter& painter, const ShownPiece& item, const RangeBox& part);

  TextPane& pane_;
  QtLayouter& layouter_;
  const PaintState& state_;
};

}  // namespace lumenote
