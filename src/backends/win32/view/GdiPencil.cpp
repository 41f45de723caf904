#include "backends/win32/view/GdiPencil.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lumenote {

namespace {
int Rounded(double pixels) { return static_cast<int>(std::lround(pixels)); }
}  // namespace

void Fill(HDC dc, const PixelRect& rect, COLORREF colour) {
  const RECT area{Rounded(rect.left), Rounded(rect.top), Rounded(rect.right), Rounded(rect.bottom)};
  const GdiObject<HBRUSH> brush(CreateSolidBrush(colour));
  FillRect(dc, &area, brush.Get());
}

void GdiPencil::Line(PixelPoint from, PixelPoint to, const Stroke& stroke, double width,
                     Colour colour) {
  const COLORREF ink = plain_ || colour == kAutoColour ? ink_ : colour;
  if (from.x > to.x) std::swap(from, to);
  if (from.y == to.y && !stroke.wave) return Dash(from, to.x, stroke, width, ink);
  const GdiObject<HPEN> pen(CreatePen(PS_SOLID, Rounded(width), ink));
  const SelectScope selected(dc_, pen.Get());
  if (stroke.wave) return Wave(from, to.x);
  MoveToEx(dc_, Rounded(from.x), Rounded(from.y), nullptr);
  LineTo(dc_, Rounded(to.x), Rounded(to.y));
}

// A level line is made of filled rectangles, crisp at every width.
void GdiPencil::Dash(PixelPoint from, double right, const Stroke& stroke, double width,
                     COLORREF ink) const {
  const double top = std::round(from.y - width / 2);
  if (stroke.dashes.empty()) return Fill(dc_, {from.x, top, right, top + width}, ink);
  double x = from.x;
  for (std::size_t i = 0; x < right; ++i) {
    const double end = x + stroke.dashes[i % stroke.dashes.size()] * width;
    if (i % 2 == 0) Fill(dc_, {x, top, std::min(end, right), top + width}, ink);
    x = end;
  }
}

void GdiPencil::Wave(PixelPoint from, double right) const {
  constexpr double kStep = 2;
  std::vector<POINT> path;
  double rise = 1;
  for (double x = from.x; x < right + kStep; x += kStep, rise = -rise)
    path.push_back({Rounded(std::min(x, right)), Rounded(from.y + rise)});
  Polyline(dc_, path.data(), static_cast<int>(path.size()));
}

}  // namespace lumenote
