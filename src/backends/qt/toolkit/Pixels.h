// Points and rectangles of the view and of the toolkit.
#pragma once
#include <QRectF>

#include "view/layout/Pixels.h"

namespace lumenote {

inline PixelPoint ToPoint(QPointF point) { return {point.x(), point.y()}; }
inline QPointF ToQPoint(PixelPoint point) { return {point.x, point.y}; }

inline QRectF ToQRect(const PixelRect& rect) {
  return {rect.left, rect.top, rect.Width(), rect.Height()};
}

}  // namespace lumenote
