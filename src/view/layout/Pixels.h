// Points and rectangles of a pane in the backend's pixels, possibly fractional.
#pragma once
#include <algorithm>
#include <cmath>

namespace lumenote {

struct PixelPoint {
  double x = 0;
  double y = 0;
};

struct PixelSize {
  double width = 0;
  double height = 0;
  bool operator==(const PixelSize&) const = default;
};

/// Excludes its right and bottom edges.
struct PixelRect {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  bool operator==(const PixelRect&) const = default;

  double Width() const { return right - left; }
  double Height() const { return bottom - top; }
  bool IsEmpty() const { return left >= right || top >= bottom; }
  PixelRect MovedBy(double x, double y) const { return {left + x, top + y, right + x, bottom + y}; }
  /// The smallest rectangle that contains both.
  PixelRect United(const PixelRect& other) const {
    if (IsEmpty()) return other;
    return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
            std::max(bottom, other.bottom)};
  }
  /// The smallest enclosing rectangle with edges on whole pixels.
  PixelRect Aligned() const {
    return {std::floor(left), std::floor(top), std::ceil(right), std::ceil(bottom)};
  }
};

}  // namespace lumenote
