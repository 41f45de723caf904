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
};

}  // namespace lumenote
