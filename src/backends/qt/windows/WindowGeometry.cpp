#include "backends/qt/windows/WindowGeometry.h"

#include <algorithm>
#include <cmath>

#include "backends/qt/toolkit/Units.h"

namespace lumenote {

namespace {
constexpr int kSettlingTime = 1000;  // milliseconds
constexpr QSize kMostPixels{16384, 16384};
}  // namespace

QSize WindowGeometry::ClientSize(const Rect& place) {
  const QSize outer(RoundToPixel(place.width), RoundToPixel(place.height));
  return (outer - kDecorations).expandedTo({0, 0}).boundedTo(kMostPixels);
}

QPoint WindowGeometry::Corner(const Rect& place) {
  return {RoundToPixel(place.left), RoundToPixel(place.top)};
}

void WindowGeometry::Asked(const Rect& place) {
  asked_ = settledSize_ = ClientSize(place);
  askedCorner_ = settledCorner_ = Corner(place);
  settling_.setRemainingTime(kSettlingTime);
}

// Screens with a fractional scale round to device pixels.
std::optional<Rect> WindowGeometry::Resized(QSize client, const Rect& place) {
  const QSize off = client - asked_;
  const QSize grown = client - settledSize_;
  settledSize_ = client;
  if (std::max(std::abs(off.width()), std::abs(off.height())) <= 1) return std::nullopt;
  asked_ = client;
  return Rect{place.left, place.top, place.width + ToTwips(grown.width()),
              place.height + ToTwips(grown.height())};
}

std::optional<Rect> WindowGeometry::Moved(QPoint corner, const Rect& place) {
  const QPoint moved = corner - settledCorner_;
  settledCorner_ = corner;
  if (!settling_.hasExpired() || moved.isNull()) return std::nullopt;
  return Rect{place.left + ToTwips(moved.x()), place.top + ToTwips(moved.y()), place.width,
              place.height};
}

}  // namespace lumenote
