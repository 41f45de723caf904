#include "backends/qt/view/ViewPainter.h"

#include <algorithm>

#include "backends/qt/text/PiecePainter.h"
#include "backends/qt/toolkit/Pixels.h"

namespace lumenote {

namespace {
const QtPiece& PieceOf(const ShownPiece& item) { return static_cast<const QtPiece&>(*item.piece); }

}  // namespace

void ViewPainter::Paint(QPainter& painter, const QRectF& area) {
  painter.fillRect(area, state_.palette.base());
  for (const ShownPiece& item : pane_.Visible())
    if (item.y < area.bottom() && item.y + item.piece->height > area.top())
      PaintPiece(painter, item, area);
  for (const auto& caret : {state_.marks.caret, state_.marks.dropCaret})
    if (caret) painter.fillRect(ToQRect(*caret), state_.palette.text());
}

void ViewPainter::PaintPiece(QPainter& painter, const ShownPiece& item, const QRectF& area) {
  const QPointF origin(pane_.TextLeft(), item.y);
  PiecePainter pieces(painter, pane_.Content(), layouter_, state_.palette);
  pieces.PaintBackdrop(*item.piece, origin, area);
  if (const auto stripe = BreakBoxOf(pane_, item, state_.marks.selection))
    painter.fillRect(ToQRect(*stripe), state_.palette.highlight());
  pieces.PaintText(PieceOf(item), origin, area);
  PaintSelection(painter, item);
  pieces.PaintOver(PieceOf(item), origin, area, state_.marks.selection);
}

// Qt's own selection painting clips raised and lowered text.
void ViewPainter::PaintSelection(QPainter& painter, const ShownPiece& item) {
  for (const RangeBox& part : BoxesOf(pane_, item, state_.marks.selection)) {
    painter.fillRect(ToQRect(part.box), state_.palette.highlight());
    PaintSelectedText(painter, item, part);
  }
}

void ViewPainter::PaintSelectedText(QPainter& painter, const ShownPiece& item,
                                    const RangeBox& part) {
  painter.setPen(state_.palette.color(QPalette::HighlightedText));
  const QtPiece& piece = PieceOf(item);
  const QTextLine text = piece.layout.lineAt(part.line);
  for (auto run = piece.runs.begin(); run != piece.runs.end(); ++run) {
    const auto next = std::next(run);
    const int from = std::max(run->start, part.start);
    const int to = next == piece.runs.end() ? part.end : std::min(next->start, part.end);
    if (from >= to) continue;
    const CharStyle& style = layouter_.styles.Of(pane_.Content(), run->format);
    if (piece.BoxAt(from)) continue;
    for (const QGlyphRun& glyphs : text.glyphRuns(from, to - from))
      painter.drawGlyphRun({pane_.TextLeft(), item.y - style.raise}, glyphs);
  }
}

}  // namespace lumenote
