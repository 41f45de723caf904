#include "document/pictures/ImageSize.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "base/Twips.h"
#include "document/pictures/ByteOrder.h"
#include "document/pictures/Orientation.h"

namespace lumenote {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPngMark = "\x89PNG\r\n\x1A\n"sv;
constexpr std::string_view kJpegMark = "\xFF\xD8\xFF"sv;
constexpr double kMetresPerInch = 0.0254;

/// Dots per inch; resolutions that no device has are not believed.
double Believed(double resolution) {
  constexpr double kUsual = 96;
  return resolution >= 10 && resolution <= 4800 ? resolution : kUsual;
}

/// In pixels, and pixels per inch.
struct Raster {
  double width = 0;
  double height = 0;
  double across = 0;
  double down = 0;
};

std::optional<Raster> Extent(double width, double height, double across, double down) {
  if (width < 1 || height < 1) return std::nullopt;
  return Raster{width, height, across, down};
}

std::optional<Raster> RasterOfPng(std::string_view data) {
  constexpr std::size_t kChunkFrame = 12;  // length, name and sum
  if (!data.starts_with(kPngMark) || data.size() < 24) return std::nullopt;
  const double width = BigEndian32(data, 16);
  const double height = BigEndian32(data, 20);
  for (std::size_t at = kPngMark.size(); at + kChunkFrame < data.size();) {
    const std::string_view name = data.substr(at + 4, 4);
    const bool metric = name == "pHYs" && at + 16 < data.size() && data[at + 16] == 1;
    if (metric)
      return Extent(width, height, BigEndian32(data, at + 8) * kMetresPerInch,
                    BigEndian32(data, at + 12) * kMetresPerInch);
    if (name == "IDAT") break;
    at += kChunkFrame + BigEndian32(data, at);
  }
  return Extent(width, height, 0, 0);
}

/// Whether no length follows; such a marker has no place before the width and height.
bool IsAlone(unsigned marker) { return marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD9); }

/// Whether a segment tells width and height.
bool IsFrame(unsigned marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<Raster> RasterOfJpeg(std::string_view data) {
  constexpr double kCentimetresPerInch = 2.54;
  if (!data.starts_with(kJpegMark)) return std::nullopt;
  double across = 0;
  double down = 0;
  for (std::size_t at = 2; at + 9 <= data.size();) {
    if (data[at] != '\xFF') return std::nullopt;
    const unsigned marker = static_cast<unsigned char>(data[at + 1]);
    if (IsAlone(marker)) return std::nullopt;
    if (IsFrame(marker))
      return Extent(BigEndian16(data, at + 7), BigEndian16(data, at + 5), across, down);
    if (data.substr(at + 4, 5) == "JFIF\0"sv && at + 16 <= data.size()) {
      const double unit = data[at + 11] == 1 ? 1 : data[at + 11] == 2 ? kCentimetresPerInch : 0;
      across = BigEndian16(data, at + 12) * unit;
      down = BigEndian16(data, at + 14) * unit;
    }
    at += marker == 0xFF ? 1 : 2 + BigEndian16(data, at + 2);
  }
  return std::nullopt;
}

std::optional<Raster> RasterOfBitmap(std::string_view data) {
  constexpr std::size_t kOldHeader = 12;
  if (data.size() < 16) return std::nullopt;
  if (LittleEndian32(data, 0) == kOldHeader)
    return Extent(LittleEndian16(data, 4), LittleEndian16(data, 6), 0, 0);
  if (LittleEndian32(data, 0) < 40 || data.size() < 40) return std::nullopt;
  const auto metric = [&](std::size_t at) {
    return static_cast<std::int32_t>(LittleEndian32(data, at)) * kMetresPerInch;
  };
  const auto side = [&](std::size_t at) {
    return std::abs(static_cast<double>(static_cast<std::int32_t>(LittleEndian32(data, at))));
  };
  return Extent(side(4), side(8), metric(24), metric(28));
}

std::optional<Raster> RasterOf(PictureType type, std::string_view data) {
  if (type == PictureType::Png) return RasterOfPng(data);
  if (type == PictureType::Jpeg) return RasterOfJpeg(data);
  return type == PictureType::Bitmap ? RasterOfBitmap(data) : std::nullopt;
}

}  // namespace

std::optional<ImageSize> SizeOfImage(PictureType type, std::string_view data) {
  auto raster = RasterOf(type, data);
  if (!raster) return std::nullopt;
  if (OrientationOf(data).exchanged)
    raster = Raster{raster->height, raster->width, raster->down, raster->across};
  return ImageSize{raster->width * kTwipsPerInch / Believed(raster->across),
                   raster->height * kTwipsPerInch / Believed(raster->down)};
}

std::optional<PictureType> TypeOfImage(std::string_view file) {
  if (file.starts_with(kPngMark)) return PictureType::Png;
  if (file.starts_with(kJpegMark)) return PictureType::Jpeg;
  return file.starts_with("BM") ? std::optional(PictureType::Bitmap) : std::nullopt;
}

bool IsDecodable(std::string_view file) {
  constexpr std::size_t kBitmapFileHeader = 14;
  const auto type = TypeOfImage(file);
  if (!type) return false;
  if (*type == PictureType::Bitmap) file.remove_prefix(std::min(kBitmapFileHeader, file.size()));
  const auto raster = RasterOf(*type, file);
  return raster && raster->width * raster->height <= kMostImagePixels;
}

}  // namespace lumenote
