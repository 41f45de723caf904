#include "backends/qt/view/ViewPainter.h"

#include <algorithm>
#include <cmath>

#include "backends/qt/text/BoxPainter.h"
#include "backends/qt/text/Decorations.h"
#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/DeviceLines.h"
#include "backends/qt/toolkit/Pixels.h"
#include "view/layout/Backdrop.h"
#include "view/layout/InlineBoxes.h"

namespace lumenote {

namespace {
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
  PaintBackdrop(painter, item, area);
  painter.setPen(state_.palette.color(QPalette::Text));
  if (const auto stripe = BreakBoxOf(pane_, item, state_.marks.selection))
    painter.fillRect(ToQRect(*stripe), state_.palette.highlight());
  PaintBullet(painter, item);
  PieceOf(item).layout.draw(&painter, origin, {}, area);
  PaintSelection(painter, item);
  PaintBoxes(painter, item, area);
  PaintDecorations(painter, PieceOf(item), origin, state_.palette.color(QPalette::Text));
}

void ViewPainter::PaintBackdrop(QPainter& painter, const ShownPiece& item, const QRectF& area) {
  const double left = pane_.TextLeft();
  const PixelRect seen{area.left(), area.top(), area.right(), area.bottom()};
  const BackdropColours colours{.ink = ToBgr(state_.palette.color(QPalette::Text)),
                                .ground = ToBgr(state_.palette.color(QPalette::Base))};
  for (const BackdropPart& part :
       BackdropOf(layouter_, pane_.Content(), *item.piece, seen.MovedBy(-left, -item.y), colours))
    painter.fillRect(OnDevicePixels(painter, ToQRect(part.area.MovedBy(left, item.y))),
                     FromBgr(part.colour));
}

void ViewPainter::PaintBoxes(QPainter& painter, const ShownPiece& item, const QRectF& area) {
  const Piece& piece = *item.piece;
  BoxPainter boxes(painter, pane_.Content(), layouter_.pictures, state_.palette);
  for (const InlineBox& box : piece.boxes) {
    const QRectF place = ToQRect(piece.PlaceOf(box).MovedBy(pane_.TextLeft(), item.y));
    const Position at = piece.ToPosition(box.index);
    const Selection& selection = state_.marks.selection;
    const bool selected = at >= selection.start && at < selection.end;
    if (!place.intersects(area)) continue;
    if (box.number > 0)
      PaintNumber(painter, box.number, place, pane_.Content().CharFormatAt(at), selected);
    else
      boxes.Paint(box, place, selected);
  }
}

void ViewPainter::PaintNumber(QPainter& painter, int number, const QRectF& place, CharId format,
                              bool selected) {
  const CharStyle& style = layouter_.styles.Of(pane_.Content(), format);
  QFont font = style.format.font();
  font.setPixelSize(std::max(1, qRound(place.height() * kNumberHeight)));
  painter.setFont(font);
  const QColor own =
      style.ink == kAutoColour ? state_.palette.color(QPalette::Text) : FromBgr(style.ink);
  painter.setPen(selected ? state_.palette.color(QPalette::HighlightedText) : own);
  painter.drawText(QPointF(place.left(), place.top() + place.height() * kNumberBaseline),
                   QString::number(number));
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

void ViewPainter::PaintBullet(QPainter& painter, const ShownPiece& item) {
  const QtPiece& piece = PieceOf(item);
  if (piece.bulletX < 0) return;
  const PieceLine& line = piece.lines.front();
  painter.setFont(piece.layout.font());
  painter.drawText(QPointF(pane_.TextLeft() + piece.bulletX, item.y + line.baseline),
                   QString::fromUtf16(kBullet));
}

}  // namespace lumenote
