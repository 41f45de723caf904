#include "backends/qt/toolkit/Units.h"

#include <algorithm>
#include <cmath>

namespace lumenote {

namespace {
constexpr double kMaxPixels = 32000;
}

int RoundToPixel(double twips) {
  return static_cast<int>(std::lround(std::clamp(ToPixels(twips), -kMaxPixels, kMaxPixels)));
}

QRect ToPixels(const Rect& twips) {
  const QPoint corner(RoundToPixel(twips.left), RoundToPixel(twips.top));
  const int right = RoundToPixel(double{twips.left} + double{twips.width});
  const int bottom = RoundToPixel(double{twips.top} + double{twips.height});
  return {corner, QSize(right - corner.x(), bottom - corner.y())};
}

}  // namespace lumenote
