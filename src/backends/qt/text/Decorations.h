// Draws underlines, strike-through and placeholders over a piece's text.
#pragma once
#include <QPainter>

#include "backends/qt/text/QtPiece.h"

namespace lumenote {

/// `origin` is where the text's left edge meets the piece's top; `ink` is the automatic colour.
void PaintDecorations(QPainter& painter, const QtPiece& piece, QPointF origin, const QColor& ink);

}  // namespace lumenote
