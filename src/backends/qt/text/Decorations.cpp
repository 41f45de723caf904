#include "backends/qt/text/Decorations.h"

#include <QMap>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace lumenote {

namespace {

/// How to draw an underline: dashes in units of the pen width; empty for a solid line.
struct Stroke {
  QList<qreal> dashes{};
  double weight = 1;
  int lines = 1;
  bool wave = false;
};

/// Underlines that are not in the table are single solid lines.
Stroke StrokeOf(Underline kind) {
  static const QList<qreal> kDots{1, 2};
  static const QList<qreal> kDashes{4, 2};
  static const QList<qreal> kLongDashes{8, 3};
  static const QList<qreal> kDashDot{4, 2, 1, 2};
  static const QList<qreal> kDashDotDot{4, 2, 1, 2, 1, 2};
  static const QMap<Underline, Stroke> kStrokes{
      {Underline::Double, {.lines = 2}},
      {Underline::Dotted, {.dashes = kDots}},
      {Underline::Dash, {.dashes = kDashes}},
      {Underline::DashDot, {.dashes = kDashDot}},
      {Underline::DashDotDot, {.dashes = kDashDotDot}},
      {Underline::Thick, {.weight = 2}},
      {Underline::Wave, {.wave = true}},
      {Underline::DoubleWave, {.lines = 2, .wave = true}},
      {Underline::HeavyWave, {.weight = 2, .wave = true}},
      {Underline::LongDash, {.dashes = kLongDashes}},
      {Underline::ThickDotted, {.dashes = kDots, .weight = 2}},
      {Underline::ThickDash, {.dashes = kDashes, .weight = 2}},
      {Underline::ThickDashDot, {.dashes = kDashDot, .weight = 2}},
      {Underline::ThickDashDotDot, {.dashes = kDashDotDot, .weight = 2}},
      {Underline::ThickLongDash, {.dashes = kLongDashes, .weight = 2}},
  };
  return kStrokes.value(kind);
}

/// The part of a decoration in one line of a piece.
struct Stretch {
  int start = 0;
  int end = 0;
  QTextLine line;
  double baseline = 0;  // of the decorated text, in the painter's coordinates
  double left = 0;      // of the text's edge

  double X(int index) const { return left + line.cursorToX(index); }
};

class DecorationPainter {
 public:
  DecorationPainter(QPainter& painter, const QtPiece& piece, const Decoration& decoration,
                    const QColor& ink)
      : painter_(painter),
        text_(piece.layout.text()),
        decoration_(decoration),
        ink_(decoration.colour.isValid() ? decoration.colour : ink) {}

  void Paint(const Stretch& stretch) {
    if (decoration_.object) PaintObjects(stretch);
    if (decoration_.strikes > 0) PaintStrikes(stretch);
    if (decoration_.underline == Underline::Words)
      UnderlineWords(stretch);
    else if (decoration_.underline != Underline::None)
      UnderlineBetween(stretch, stretch.start, stretch.end);
  }

 private:
  void PaintObjects(const Stretch& stretch);
  void PaintStrikes(const Stretch& stretch);
  double Weight() const;
  void UnderlineWords(const Stretch& stretch);
  void UnderlineBetween(const Stretch& stretch, int start, int end);
  void DrawLine(double x1, double x2, double y, const Stroke& stroke);

  QPainter& painter_;
  const QString text_;
  const Decoration& decoration_;
  const QColor ink_;
};

/// Width of a thin line for text of this size.
double DecorationPainter::Weight() const {
  constexpr double kAscentPerPixel = 16;
  return std::max(1.0, std::round(decoration_.ascent / kAscentPerPixel));
}

void DecorationPainter::DrawLine(double x1, double x2, double y, const Stroke& stroke) {
  QPen pen(ink_, stroke.weight * Weight());
  pen.setCapStyle(Qt::FlatCap);
  if (!stroke.dashes.isEmpty()) pen.setDashPattern(stroke.dashes);
  painter_.setPen(pen);
  if (!stroke.wave) {
    painter_.drawLine(QPointF(x1, y), QPointF(x2, y));
    return;
  }
  constexpr double kStep = 2;
  QPainterPath path(QPointF(x1, y));
  double rise = 1.5;
  for (double x = x1 + kStep; x < x2 + kStep; x += kStep, rise = -rise)
    path.lineTo(std::min(x, x2), y + rise);
  painter_.drawPath(path);
}

void DecorationPainter::UnderlineBetween(const Stretch& stretch, int start, int end) {
  const Stroke stroke = StrokeOf(decoration_.underline);
  double y = std::floor(stretch.baseline + decoration_.descent * 0.4) + 0.5;
  for (int i = 0; i < stroke.lines; ++i, y += (stroke.wave ? 3 : 2) * Weight())
    DrawLine(stretch.X(start), stretch.X(end), y, stroke);
}

void DecorationPainter::UnderlineWords(const Stretch& stretch) {
  for (int start = stretch.start; start < stretch.end;) {
    int end = start;
    while (end < stretch.end && !text_[end].isSpace()) ++end;
    if (end > start) UnderlineBetween(stretch, start, end);
    start = end + 1;
  }
}

void DecorationPainter::PaintStrikes(const Stretch& stretch) {
  double y = std::floor(stretch.baseline - decoration_.ascent * 0.3) + 0.5;
  for (int i = 0; i < decoration_.strikes; ++i, y -= 2 * Weight())
    DrawLine(stretch.X(stretch.start), stretch.X(stretch.end), y, {});
}

void DecorationPainter::PaintObjects(const Stretch& stretch) {
  for (int i = stretch.start; i < stretch.end; ++i) {
    const double left = stretch.X(i);
    const double height = decoration_.ascent * 0.8;
    const QRectF box(left + 1, stretch.baseline - height, stretch.X(i + 1) - left - 2, height);
    painter_.setPen(QPen(ink_, 1));
    painter_.drawRect(box);
    painter_.drawLine(box.bottomLeft(), box.center());
    painter_.drawLine(box.center(), box.bottomRight());
  }
}

}  // namespace

void PaintDecorations(QPainter& painter, const QtPiece& piece, QPointF origin, const QColor& ink) {
  for (const Decoration& decoration : piece.decorations) {
    DecorationPainter decorator(painter, piece, decoration, ink);
    for (std::size_t i = 0; i < piece.lines.size(); ++i) {
      const PieceLine& line = piece.lines[i];
      const int start = std::max(decoration.start, line.start);
      const int end = std::min(decoration.end, line.end);
      if (start >= end) continue;
      decorator.Paint({start, end, piece.layout.lineAt(static_cast<int>(i)),
                       origin.y() + line.baseline - decoration.raise, origin.x()});
    }
  }
}

}  // namespace lumenote
