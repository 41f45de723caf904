#include "backends/win32/peers/labels/SignIcon.h"

#include <cmath>
#include <vector>

#include "backends/win32/toolkit/drawing/MemoryDc.h"

namespace lumenote {
namespace {

/// Where the line is drawn the mask lets the colours through.
void Draw(HDC dc, HBITMAP bitmap, StatusSign sign, int side, COLORREF ground, COLORREF ink) {
  const SelectScope drawn(dc, bitmap);
  const GdiObject<HBRUSH> brush(CreateSolidBrush(ground));
  const RECT area = {0, 0, side, side};
  FillRect(dc, &area, brush.Get());
  const double scale = side / double{kSignSide};
  const auto width = static_cast<int>(std::lround(kSignStroke * scale));
  const GdiObject<HPEN> pen(CreatePen(PS_SOLID, width, ink));
  const SelectScope drawing(dc, pen.Get());
  std::vector<POINT> line;
  for (const Point& point : StrokeOf(sign))
    line.push_back({std::lround(point.x * scale), std::lround(point.y * scale)});
  Polyline(dc, line.data(), static_cast<int>(line.size()));
}

}  // namespace

SignIcon MakeSignIcon(StatusSign sign, int side, COLORREF ink) {
  if (sign == StatusSign::None) return SignIcon();
  const DcScope screen(nullptr);
  const MemoryDc dc(screen.Get());
  const GdiObject<HBITMAP> colour(CreateCompatibleBitmap(screen.Get(), side, side));
  const GdiObject<HBITMAP> mask(CreateBitmap(side, side, 1, 1, nullptr));
  constexpr COLORREF kBlack = RGB(0, 0, 0);
  Draw(dc.Get(), colour.Get(), sign, side, kBlack, ink);
  Draw(dc.Get(), mask.Get(), sign, side, RGB(255, 255, 255), kBlack);
  ICONINFO icon = {};
  icon.fIcon = TRUE;
  icon.hbmColor = colour.Get();
  icon.hbmMask = mask.Get();
  return SignIcon(CreateIconIndirect(&icon));
}

}  // namespace lumenote
