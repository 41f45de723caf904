#include "backends/qt/view/ViewPainter.h"

#include <algorithm>
#include <cmath>

#include "backends/qt/text/Decorations.h"
#include "backends/qt/toolkit/Pixels.h"

namespace lumenote {

namespace {
constexpr double kSelectedBreakWidth = 5;
constexpr char16_t kBullet[] = u"\u2022";

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
  painter.setPen(state_.palette.color(QPalette::Text));
  PaintSelectedBreak(painter, item);
  PaintBullet(painter, item);
  PieceOf(item).layout.draw(&painter, origin, {}, area);
  PaintSelection(painter, item);
  PaintDecorations(painter, PieceOf(item), origin, state_.palette.color(QPalette::Text));
}

// Qt's own selection painting clips raised and lowered text.
void ViewPainter::PaintSelection(QPainter& painter, const ShownPiece& item) {
  const QtPiece& piece = PieceOf(item);
  const int start = piece.ToIndex(std::max(state_.marks.selection.start, piece.from));
  const int end = piece.ToIndex(std::min(state_.marks.selection.end, piece.to));
  const QPointF origin(pane_.TextLeft(), item.y);
  for (int i = 0; i < std::ssize(piece.lines); ++i) {
    const PieceLine& line = piece.lines[static_cast<std::size_t>(i)];
    const int from = std::max(start, line.start);
    const int to = std::min(end, line.end);
    if (from >= to) continue;
    const QTextLine text = piece.layout.lineAt(i);
    const auto [left, right] = std::minmax({text.cursorToX(from), text.cursorToX(to)});
    const QRectF box(origin.x() + left, item.y + line.top, right - left, line.height);
    painter.fillRect(box, state_.palette.highlight());
    PaintSelectedText(painter, piece, origin, i, from, to);
  }
}

void ViewPainter::PaintSelectedText(QPainter& painter, const QtPiece& piece, QPointF origin,
                                    int line, int start, int end) {
  painter.setPen(state_.palette.color(QPalette::HighlightedText));
  const QTextLine text = piece.layout.lineAt(line);
  for (auto run = piece.runs.begin(); run != piece.runs.end(); ++run) {
    const auto next = std::next(run);
    const int from = std::max(run->start, start);
    const int to = next == piece.runs.end() ? end : std::min(next->start, end);
    if (from >= to) continue;
    const CharStyle& style = layouter_.styles.Of(pane_.Content(), run->format);
    if (style.object) continue;
    for (const QGlyphRun& glyphs : text.glyphRuns(from, to - from))
      painter.drawGlyphRun(origin - QPointF(0, style.raise), glyphs);
  }
}

// A selected paragraph break is a narrow stripe after the last line.
void ViewPainter::PaintSelectedBreak(QPainter& painter, const ShownPiece& item) {
  const QtPiece& piece = PieceOf(item);
  if (!piece.closes || state_.marks.selection.start > piece.to ||
      state_.marks.selection.end <= piece.to)
    return;
  const PieceLine& line = piece.lines.back();
  const double x = pane_.TextLeft() + piece.XOf(piece.to);
  painter.fillRect(QRectF(x, item.y + line.top, kSelectedBreakWidth, line.height),
                   state_.palette.highlight());
}

void ViewPainter::PaintBullet(QPainter& painter, const ShownPiece& item) {
  const QtPiece& piece = PieceOf(item);
  if (piece.bulletX < 0) return;
  const PieceLine& line = piece.lines.front();
  painter.setFont(piece.layout.font());
  painter.drawText(QPointF(pane_.TextLeft() + piece.bulletX, item.y + line.baseline),
                   QString::fromUtf16(kBullet));
}

}  // namespace lumenote
