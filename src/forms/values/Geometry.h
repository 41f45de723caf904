// Points and rectangles on a window, in twips.
#pragma once

namespace lumenote {

struct Point {
  float x = 0;
  float y = 0;
};

struct Rect {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  bool operator==(const Rect&) const = default;

  bool Meets(const Rect& other) const {
    return left < other.left + other.width && other.left < left + width &&
           top < other.top + other.height && other.top < top + height;
  }
  bool Holds(Point at) const {
    return at.x >= left && at.x < left + width && at.y >= top && at.y < top + height;
  }
};

}  // namespace lumenote
