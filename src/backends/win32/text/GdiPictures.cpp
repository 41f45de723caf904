#include "backends/win32/text/GdiPictures.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "document/pictures/ImageSize.h"
#include "document/pictures/Orientation.h"
#include "document/pictures/PictureFrame.h"

namespace lumenote {
namespace {

constexpr double kMostPixels = 1 << 24;  // of one image, and of all that are kept
constexpr std::size_t kMostEntries = 256;

double PixelsOf(SIZE size) { return 1.0 * size.cx * size.cy; }

/// In proportion, but with no more pixels than that.
SIZE Bounded(SIZE size) {
  const double shrink = std::min(1.0, std::sqrt(kMostPixels / PixelsOf(size)));
  return {std::max(1L, static_cast<LONG>(size.cx * shrink)),
          std::max(1L, static_cast<LONG>(size.cy * shrink))};
}

/// In pixels of the whole image, at least one.
Gdiplus::Rect PartOf(const PictureFrame& frame, Gdiplus::Bitmap& image) {
  const auto cut = [](double from, double to, UINT side, INT& start, INT& length) {
    const auto whole = static_cast<INT>(side);
    start = std::clamp(static_cast<INT>(std::lround(from * side)), 0, whole - 1);
    length = std::clamp(static_cast<INT>(std::lround(to * side)) - start, 1, whole - start);
  };
  Gdiplus::Rect part;
  cut(frame.left, frame.right, image.GetWidth(), part.X, part.Width);
  cut(frame.top, frame.bottom, image.GetHeight(), part.Y, part.Height);
  return part;
}

/// The edges blend with more of the image, not with nothing.
std::unique_ptr<Gdiplus::Bitmap> Scaled(Gdiplus::Bitmap& image, const Gdiplus::Rect& part,
                                        SIZE size) {
  auto scaled = std::make_unique<Gdiplus::Bitmap>(size.cx, size.cy, PixelFormat32bppPARGB);
  Gdiplus::Graphics canvas(scaled.get());
  canvas.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
  canvas.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  Gdiplus::ImageAttributes edges;
  edges.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
  const auto done = canvas.DrawImage(&image, Gdiplus::Rect(0, 0, size.cx, size.cy), part.X, part.Y,
                                     part.Width, part.Height, Gdiplus::UnitPixel, &edges);
  return done == Gdiplus::Ok ? std::move(scaled) : nullptr;
}

std::unique_ptr<Gdiplus::Bitmap> Shown(Gdiplus::Bitmap& image, const PictureFrame& frame,
                                       const Orientation& turn, SIZE size) {
  if (turn.exchanged) std::swap(size.cx, size.cy);
  auto shown = Scaled(image, PartOf(BeforeTurning(frame, turn), image), size);
  if (shown) TurnUpright(*shown, turn);
  return shown;
}

}  // namespace

Gdiplus::Bitmap* GdiPictures::Of(const Document& document, ItemId item, SIZE wanted) {
  const SIZE size = Bounded({std::max(wanted.cx, 1L), std::max(wanted.cy, 1L)});
  const auto known = std::ranges::find_if(entries_, [&](const Entry& entry) {
    return entry.item == item && entry.size.cx == size.cx && entry.size.cy == size.cy;
  });
  if (known != entries_.end()) {
    entries_.splice(entries_.begin(), entries_, known);
    return known->image.get();
  }
  if (!library_) library_.emplace();
  const KeptItem& source = document.Formats().items[item];
  const std::string file = ImageFileOf(source);
  const PictureFrame frame = FrameOf(source);
  const auto image = IsDecodable(file) ? library_->Decode(file) : nullptr;
  entries_.push_front(
      {item, size, image ? Shown(*image, frame, OrientationIn(frame, file), size) : nullptr});
  DropOldest();
  return entries_.front().image.get();
}

void GdiPictures::DropOldest() {
  double pixels = 0;
  auto entry = entries_.begin();
  for (std::size_t count = 0; entry != entries_.end() && count < kMostEntries; ++entry, ++count) {
    if (entry->image) pixels += PixelsOf(entry->size);
    if (pixels > kMostPixels && count > 0) break;
  }
  entries_.erase(entry, entries_.end());
}

}  // namespace lumenote
