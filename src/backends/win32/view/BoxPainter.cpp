#include "backends/win32/view/BoxPainter.h"

#include <cmath>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "document/pictures/PictureFrame.h"

namespace lumenote {

namespace {

constexpr BYTE kTint = 115;  // opacity of the selection over a picture
constexpr double kMostSide = 1e6;

LONG Whole(double pixels) { return std::lround(std::min(pixels, kMostSide)); }

}  // namespace

void BoxPainter::Paint(const InlineBox& box, const PixelRect& place, bool selected) {
  const Gdiplus::Rect target(Whole(place.left), Whole(place.top), Whole(place.Width()),
                             Whole(place.Height()));
  if (!PaintImage(box.item, target)) PaintLabel(box.item, place);
  if (!selected) return;
  const COLORREF tint = colours_.tint;
  const Gdiplus::SolidBrush brush(
      Gdiplus::Color(kTint, GetRValue(tint), GetGValue(tint), GetBValue(tint)));
  Gdiplus::Graphics(dc_).FillRectangle(&brush, target);
}

bool BoxPainter::PaintImage(ItemId item, const Gdiplus::Rect& place) {
  Gdiplus::Bitmap* const image = pictures_.Of(document_, item, {place.Width, place.Height});
  if (!image) return false;
  const auto width = static_cast<INT>(image->GetWidth());
  const auto height = static_cast<INT>(image->GetHeight());
  Gdiplus::Graphics canvas(dc_);
  canvas.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  return canvas.DrawImage(image, place, 0, 0, width, height, Gdiplus::UnitPixel) == Gdiplus::Ok;
}

void BoxPainter::PaintLabel(ItemId item, const PixelRect& place) {
  RECT inside = {Whole(place.left), Whole(place.top), Whole(place.right), Whole(place.bottom)};
  FrameRect(dc_, &inside, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
  const std::u16string label(LabelOf(document_.Formats().items[item]));
  const SelectScope font(dc_, GetStockObject(DEFAULT_GUI_FONT));
  SetTextColor(dc_, colours_.ink);
  DrawTextW(dc_, Wide(label), -1, &inside,
            DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

}  // namespace lumenote
