#include "backends/qt/ViewPainter.h"

#include <algorithm>
#include <cmath>

#include "backends/qt/Decorations.h"

namespace lumenote {

namespace {
constexpr double kSelectedBreakWidth = 5;
constexpr char16_t kBullet[] = u"\u2022";
}  // namespace

void ViewPainter::Paint(QPainter& painter, const QRectF& area) {
  painter.fillRect(area, state_.palette.base());
  for (const ShownPiece& item : pane_.Visible())
    if (item.y < area.bottom() && item.y + item.piece->height > area.top())
      PaintPiece(painter, item, area);
  if (state_.caret) painter.fillRect(*state_.caret, state_.palette.text());
  if (state_.dropCaret) painter.fillRect(*state_.dropCaret, state_.palette.text());
}

void ViewPainter::PaintPiece(QPainter& painter, const ShownPiece& item, const QRectF& area) {
  const QPointF origin(pane_.TextLeft(), item.y);
  painter.setPen(state_.palette.color(QPalette::Text));
  PaintSelectedBreak(painter, item);
  PaintBullet(painter, item);
  const QRectF lines =
      area.intersected(QRectF(0, item.y, pane_.Size().width(), item.piece->height));
  item.piece->layout.draw(&painter, origin, Selections(*item.piece),
                          QRectF(lines.left(), lines.top(), lines.width(), lines.height()));
  PaintDecorations(painter, *item.piece, origin, state_.palette.color(QPalette::Text));
}

QList<QTextLayout::FormatRange> ViewPainter::Selections(const Piece& piece) const {
  const int start = piece.ToIndex(std::max(state_.selection.start, piece.from));
  const int end = piece.ToIndex(std::min(state_.selection.end, piece.to));
  if (start >= end) return {};
  QTextLayout::FormatRange range;
  range.start = start;
  range.length = end - start;
  range.format.setBackground(state_.palette.highlight());
  range.format.setForeground(state_.palette.highlightedText());
  return {range};
}

// A selected paragraph break shows as a narrow stripe behind the last line.
void ViewPainter::PaintSelectedBreak(QPainter& painter, const ShownPiece& item) {
  const Piece& piece = *item.piece;
  if (!piece.closes || state_.selection.start > piece.to || state_.selection.end <= piece.to)
    return;
  const PieceLine& line = piece.lines.back();
  const double x = pane_.TextLeft() + piece.XOf(piece.to);
  painter.fillRect(QRectF(x, item.y + line.top, kSelectedBreakWidth, line.height),
                   state_.palette.highlight());
}

void ViewPainter::PaintBullet(QPainter& painter, const ShownPiece& item) {
  const Piece& piece = *item.piece;
  if (piece.bulletX < 0) return;
  const PieceLine& line = piece.lines.front();
  painter.setFont(piece.layout.font());
  painter.drawText(QPointF(pane_.TextLeft() + piece.bulletX, item.y + line.baseline),
                   QString::fromUtf16(kBullet));
}

}  // namespace lumenote
