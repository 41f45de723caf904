// Paints the lines of a pane.
#pragma once
#include <QPainter>
#include <QPalette>

#include "backends/qt/text/TextPane.h"

namespace lumenote {

/// What is painted besides the document itself.
struct PaintState {
  Selection selection;
  std::optional<QRectF> caret;  // not at all while it blinks
  std::optional<QRectF> dropCaret;
  QPalette palette;  // in the group that shows the selection as it should be
};

class ViewPainter {
 public:
  ViewPainter(TextPane& pane, const PaintState& state) : pane_(pane), state_(state) {}

  /// Paints `area` wholly, ground included.
  void Paint(QPainter& painter, const QRectF& area);

 private:
  void PaintPiece(QPainter& painter, const ShownPiece& item, const QRectF& area);
  void PaintSelectedBreak(QPainter& painter, const ShownPiece& item);
  void PaintBullet(QPainter& painter, const ShownPiece& item);
  void PaintSelection(QPainter& painter, const ShownPiece& item);
  void PaintSelectedText(QPainter& painter, const Piece& piece, QPointF origin, int line, int start,
                         int end);

  TextPane& pane_;
  const PaintState& state_;
};

}  // namespace lumenote
