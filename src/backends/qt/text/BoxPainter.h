// Paints the boxes in a text: pictures, and what stands for those that cannot be shown.
#pragma once
#include <QPainter>
#include <QPalette>

#include "backends/qt/text/QtPictures.h"
#include "view/layout/Piece.h"

namespace lumenote {

class BoxPainter {
 public:
  /// All must outlive the painter.
  BoxPainter(QPainter& painter, const Document& document, QtPictures& pictures,
             const QPalette& palette)
      : painter_(painter), document_(document), pictures_(pictures), palette_(palette) {}

  /// `place` is where the box stands; `selected` tints it.
  void Paint(const InlineBox& box, const QRectF& place, bool selected);

 private:
  void PaintLabel(ItemId item, const QRectF& wanted);

  QPainter& painter_;
  const Document& document_;
  QtPictures& pictures_;
  const QPalette& palette_;
};

}  // namespace lumenote
