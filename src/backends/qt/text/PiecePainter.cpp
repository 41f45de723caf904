#include "backends/qt/text/PiecePainter.h"

#include <QFontInfo>
#include <algorithm>
#include <cmath>

#include "backends/qt/text/BoxPainter.h"
#include "backends/qt/text/Decorations.h"
#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/DeviceLines.h"
#include "backends/qt/toolkit/Pixels.h"
#include "view/layout/InlineBoxes.h"

namespace lumenote {

namespace {

constexpr char16_t kBullet[] = u"\u2022";

/// The font in the layout's pixels, whatever device is painted on.
QFont InPixels(QFont font, int pixels) {
  font.setPixelSize(std::max(1, pixels));
  return font;
}

/// Lines of the same thickness have as many device pixels wherever they are.
QRectF OnSamePixels(const QPainter& painter, const QRectF& line) {
  QRectF whole = OnDevicePixels(painter, line);
  const double scale = painter.deviceTransform().m11();
  const double thickness = std::min(line.width(), line.height());
  const double same = std::max(1.0, std::round(thickness * scale)) / scale;
  if (line.width() > line.height())
    whole.setHeight(same);
  else
    whole.setWidth(same);
  return whole;
}

}  // namespace

void PiecePainter::PaintBackdrop(const Piece& piece, QPointF origin, const QRectF& area,
                                 const RowOnPage* page) {
  const PixelRect seen{area.left(), area.top(), area.right(), area.bottom()};
  const BackdropColours colours{.ink = ToBgr(palette_.color(QPalette::Text)),
                                .ground = ToBgr(palette_.color(QPalette::Base)),
                                .grid = page == nullptr};
  for (const BackdropPart& part :
       BackdropOf(layouter_, document_, piece, seen.MovedBy(-origin.x(), -origin.y()), colours,
                  page ? *page : RowOnPage())) {
    const QRectF place = ToQRect(part.area.MovedBy(origin.x(), origin.y()));
    painter_.fillRect(part.line ? OnSamePixels(painter_, place) : OnDevicePixels(painter_, place),
                      FromBgr(part.colour));
  }
}

void PiecePainter::PaintText(const QtPiece& piece, QPointF origin, const QRectF& area) {
  painter_.setPen(palette_.color(QPalette::Text));
  PaintBullets(piece, origin);
  piece.layout.draw(&painter_, origin, {}, area);
}

void PiecePainter::PaintBullets(const QtPiece& piece, QPointF origin) {
  if (piece.bullets.empty()) return;
  const QFont font = piece.layout.font();
  painter_.setFont(InPixels(font, QFontInfo(font).pixelSize()));
  for (const auto& [line, x] : piece.bullets) {
    const double baseline = piece.lines[static_cast<std::size_t>(line)].baseline;
    painter_.drawText(origin + QPointF(x, baseline), QString::fromUtf16(kBullet));
  }
}

void PiecePainter::PaintOver(const QtPiece& piece, QPointF origin, const QRectF& area,
                             Selection selection) {
  PaintBoxes(piece, origin, area, selection);
  PaintDecorations(painter_, piece, origin, palette_.color(QPalette::Text));
}

void PiecePainter::PaintBoxes(const QtPiece& piece, QPointF origin, const QRectF& area,
                              Selection selection) {
  BoxPainter boxes(painter_, document_, layouter_.pictures, palette_);
  for (const InlineBox& box : piece.boxes) {
    const QRectF place = ToQRect(piece.PlaceOf(box).MovedBy(origin.x(), origin.y()));
    const Position at = piece.ToPosition(box.index);
    const bool selected = at >= selection.start && at < selection.end;
    if (!place.intersects(area)) continue;
    if (box.number > 0)
      PaintNumber(box.number, place, document_.CharFormatAt(at), selected);
    else
      boxes.Paint(box, place, selected);
  }
}

void PiecePainter::PaintNumber(int number, const QRectF& place, CharId format, bool selected) {
  const CharStyle& style = layouter_.styles.Of(document_, format);
  painter_.setFont(InPixels(style.format.font(), qRound(place.height() * kNumberHeight)));
  const QColor own = style.ink == kAutoColour ? palette_.color(QPalette::Text) : FromBgr(style.ink);
  painter_.setPen(selected ? palette_.color(QPalette::HighlightedText) : own);
  painter_.drawText(QPointF(place.left(), place.top() + place.height() * kNumberBaseline),
                    QString::number(number));
}

}  // namespace lumenote
