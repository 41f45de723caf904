#include "document/pictures/BitmapFile.h"

#include <algorithm>
#include <cstdint>

#include "document/pictures/ByteOrder.h"

namespace lumenote {
namespace {

constexpr std::uint32_t kFileHeader = 14;
constexpr std::uint32_t kOldHeader = 12;
constexpr std::uint32_t kHeader = 40;
constexpr std::uint32_t kMaxSide = 32767;
constexpr std::uint32_t kMaskedColours = 3;  // a compression

/// `content` begins with a bitmap's own header; the pixels begin at `pixels` in it.
std::string File(std::uint32_t pixels, std::string_view content) {
  std::string file = "BM";
  AppendLittleEndian(static_cast<std::uint32_t>(kFileHeader + content.size()), 4, file);
  AppendLittleEndian(0, 4, file);
  AppendLittleEndian(kFileHeader + pixels, 4, file);
  return file += content;
}

std::uint32_t PaletteSize(std::uint32_t bits, std::uint32_t used) {
  constexpr std::uint32_t kMost = 256;
  if (bits > 8) return std::min(used, kMost);
  return used == 0 || used > 1U << bits ? 1U << bits : used;
}

/// Where the pixels begin behind the header and what follows it.
std::uint32_t PixelsAt(std::string_view bitmap) {
  const std::uint32_t header = LittleEndian32(bitmap, 0);
  if (header == kOldHeader) return header + 3 * PaletteSize(LittleEndian16(bitmap, 10), 0);
  const std::uint32_t bits = LittleEndian16(bitmap, 14);
  const bool masks = header == kHeader && LittleEndian32(bitmap, 16) == kMaskedColours;
  return header + (masks ? 12 : 0) + 4 * PaletteSize(bits, LittleEndian32(bitmap, 32));
}

std::string HeaderOf(std::uint32_t width, std::uint32_t height, std::uint32_t bits) {
  std::string header;
  AppendLittleEndian(kHeader, 4, header);
  AppendLittleEndian(width, 4, header);
  AppendLittleEndian(0 - height, 4, header);  // rows from the top
  AppendLittleEndian(1, 2, header);
  AppendLittleEndian(bits, 2, header);
  header.append(kHeader - header.size(), '\0');
  if (bits == 1) header.append("\0\0\0\0\xFF\xFF\xFF\0", 8);
  return header;
}

/// Each row has some padding, in a file up to four bytes.
std::string FileOfDeviceBitmap(const PictureSource& picture) {
  const auto width = static_cast<std::uint32_t>(picture.across.size);
  const auto height = static_cast<std::uint32_t>(picture.down.size);
  const auto bits = static_cast<std::uint32_t>(picture.bitsPerPixel);
  const bool told = bits == 1 || bits == 24 || bits == 32;
  if (!told || width - 1 >= kMaxSide || height - 1 >= kMaxSide) return {};
  const std::size_t row = (width * bits + 7) / 8;
  const auto step = static_cast<std::size_t>(std::max(picture.bytesPerRow, 0));
  const std::string data = BytesOf(picture, height * step);
  if (step < row || data.size() < height * step) return {};
  std::string bitmap = HeaderOf(width, height, bits);
  const auto pixels = static_cast<std::uint32_t>(bitmap.size());
  for (std::uint32_t i = 0; i < height; ++i)
    bitmap.append(data, i * step, row).append((4 - row % 4) % 4, '\0');
  return File(pixels, bitmap);
}

}  // namespace

std::string BitmapFile(std::string_view bitmap) {
  if (bitmap.size() < kOldHeader) return {};
  const std::uint32_t header = LittleEndian32(bitmap, 0);
  const bool known = header == kOldHeader || (header >= kHeader && header < bitmap.size());
  if (!known || bitmap.size() < std::min(header, kHeader)) return {};
  const std::uint32_t pixels = PixelsAt(bitmap);
  return pixels < bitmap.size() ? File(pixels, bitmap) : std::string();
}

std::string BitmapFile(const PictureSource& picture) {
  if (picture.type == PictureType::DeviceBitmap) return FileOfDeviceBitmap(picture);
  return BitmapFile(BytesOf(picture));
}

}  // namespace lumenote
