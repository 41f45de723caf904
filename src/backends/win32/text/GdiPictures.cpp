#include "backends/win32/text/GdiPictures.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "document/pictures/ImageSize.h"
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

/// The edges blend with more of the image, not with nothing.
std::unique_ptr<Gdiplus::Bitmap> Scaled(Gdiplus::Bitmap& image, SIZE size) {
  auto scaled = std::make_unique<Gdiplus::Bitmap>(size.cx, size.cy, PixelFormat32bppPARGB);
  Gdiplus::Graphics canvas(scaled.get());
  canvas.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
  canvas.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  Gdiplus::ImageAttributes edges;
  edges.SetWrapMode(Gdiplus::WrapModeTileFlipXY);
  const Gdiplus::Rect whole(0, 0, size.cx, size.cy);
  const auto width = static_cast<INT>(image.GetWidth());
  const auto height = static_cast<INT>(image.GetHeight());
  const auto done =
      canvas.DrawImage(&image, whole, 0, 0, width, height, Gdiplus::UnitPixel, &edges);
  return done == Gdiplus::Ok ? std::move(scaled) : nullptr;
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
  const std::string file = ImageFileOf(document.Formats().items[item]);
  const auto image = IsDecodable(file) ? library_->Decode(file) : nullptr;
  entries_.push_front({item, size, image ? Scaled(*image, size) : nullptr});
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
