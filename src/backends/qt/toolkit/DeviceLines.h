// Lines that cover whole pixels of the screen, whatever it is scaled by.
#pragma once
#include <QColor>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace lumenote {

/// `rect` with each edge at the nearest device pixel, in the painter's own units.
inline QRectF OnDevicePixels(const QPainter& painter, const QRectF& rect) {
  const QTransform toDevice = painter.deviceTransform();
  const QRectF exact = toDevice.mapRect(rect);
  const QRectF whole(QPointF(exact.topLeft().toPoint()), QPointF(exact.bottomRight().toPoint()));
  return toDevice.inverted().mapRect(whole);
}

/// A border inside `rect`, as thin as a unit of the painter allows.
inline void DrawBorder(QPainter& painter, const QRectF& rect, const QColor& colour) {
  const QRectF box = OnDevicePixels(painter, rect);
  const double scale = painter.deviceTransform().m11();
  const double thin = std::max(1.0, std::floor(scale)) / scale;
  painter.fillRect(QRectF(box.left(), box.top(), box.width(), thin), colour);
  painter.fillRect(QRectF(box.left(), box.bottom() - thin, box.width(), thin), colour);
  painter.fillRect(QRectF(box.left(), box.top(), thin, box.height()), colour);
  painter.fillRect(QRectF(box.right() - thin, box.top(), thin, box.height()), colour);
}

}  // namespace lumenote
