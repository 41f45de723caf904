#include "backends/qt/windows/WindowGeometry.h"

#include <algorithm>
#include <cmath>

#include "backends/qt/toolkit/Units.h"

namespace lumenote {

namespace {
constexpr int kSettlingTime = 1000;  // milliseconds
constexpr QSize kMaxPixels{16384, 16384};
}  // namespace

QSize WindowGeometry::ClientSize(const Rect& bounds) {
  const QSize outer(RoundToPixel(bounds.width), RoundToPixel(bounds.height));
  return (outer - kDecorations).expandedTo({0, 0}).boundedTo(kMaxPixels);
}

QPoint WindowGeometry::Corner(const Rect& bounds) {
  return {RoundToPixel(bounds.left), RoundToPixel(bounds.top)};
}

void WindowGeometry::Asked(const Rect& bounds) {
  asked_ = settledSize_ = ClientSize(bounds);
  askedCorner_ = settledCorner_ = Corner(bounds);
  settling_.setRemainingTime(kSettlingTime);
}

// Screens with a fractional scale round to device pixels.
std::optional<Rect> WindowGeometry::Resized(QSize client, const Rect& bounds) {
  const QSize off = client - asked_;
  const QSize grown = client - settledSize_;
  settledSize_ = client;
  if (std::max(std::abs(off.width()), std::abs(off.height())) <= 1) return std::nullopt;
  asked_ = client;
  return Rect{bounds.left, bounds.top, bounds.width + ToTwips(grown.width()),
              bounds.height + ToTwips(grown.height())};
}

std::optional<Rect> WindowGeometry::Moved(QPoint corner, const Rect& bounds) {
  const QPoint moved = corner - settledCorner_;
  settledCorner_ = corner;
  if (!settling_.hasExpired() || moved.isNull()) return std::nullopt;
  return Rect{bounds.left + ToTwips(moved.x()), bounds.top + ToTwips(moved.y()), bounds.width,
              bounds.height};
}

}  // namespace lumenote
