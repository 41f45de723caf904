#include "backends/qt/text/Decorations.h"

#include <QPainterPath>
#include <algorithm>

#include "backends/qt/toolkit/Colours.h"
#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/toolkit/QtText.h"

namespace lumenote {

namespace {

class QtPencil final : public Pencil {
 public:
  QtPencil(QPainter& painter, const QColor& ink) : painter_(painter), ink_(ink) {}

  void Line(PixelPoint from, PixelPoint to, const Stroke& stroke, double width,
            Colour ink) override {
    QPen pen(ink == kAutoColour ? ink_ : FromBgr(ink), width);
    pen.setCapStyle(Qt::FlatCap);
    if (!stroke.dashes.empty())
      pen.setDashPattern(QList<qreal>(stroke.dashes.begin(), stroke.dashes.end()));
    painter_.setPen(pen);
    if (stroke.wave)
      painter_.drawPath(Wave(from, to.x));
    else
      painter_.drawLine(ToQPoint(from), ToQPoint(to));
  }

 private:
  static QPainterPath Wave(PixelPoint from, double right) {
    constexpr double kStep = 2;
    QPainterPath path(ToQPoint(from));
    double rise = 1.5;
    for (double x = from.x + kStep; x < right + kStep; x += kStep, rise = -rise)
      path.lineTo(std::min(x, right), from.y + rise);
    return path;
  }

  QPainter& painter_;
  const QColor ink_;
};

}  // namespace

void PaintDecorations(QPainter& painter, const QtPiece& piece, QPointF origin, const QColor& ink) {
  QtPencil pencil(painter, ink);
  const QString text = piece.layout.text();
  DrawDecorations(pencil, piece, Utf16(text), piece.decorations, ToPoint(origin));
}

}  // namespace lumenote
