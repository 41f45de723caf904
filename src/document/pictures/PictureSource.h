// The source of pictures: made and read here.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

enum class PictureType : std::uint8_t {
  Png,
  Jpeg,
  Bitmap,        // a file without its first header
  DeviceBitmap,  // rows of pixels that the words describe
  Metafile,
  EnhancedMetafile,
  Unknown,
};

/// Whether it is that of files that notes keep as they are.
constexpr bool IsKeptFile(PictureType type) {
  return type == PictureType::Png || type == PictureType::Jpeg;
}

/// What the words say of a picture's width, or of its height.
struct PictureExtent {
  int size = 0;     // pixels, of metafiles hundredths of a millimetre; 0 unknown
  int goal = 0;     // twips, before it is scaled; 0 unknown
  int scale = 100;  // per cent
  int cropBefore = 0;
  int cropBehind = 0;  // twips of the goal that are not shown
};

struct PictureSource {
  PictureType type = PictureType::Unknown;
  PictureExtent across{};
  PictureExtent down{};
  int bitsPerPixel = 1;  // of a device bitmap
  int bytesPerRow = 0;
  std::string_view data{};  // what follows in the group: digits, among them other groups
};

/// The first picture in a piece of kept source, which outlives the result. Costs little, however
/// much data there is.
std::optional<PictureSource> FindPicture(std::string_view source);
/// The bytes that the digits mean, at most as many as `limit`.
std::string BytesOf(const PictureSource& picture, std::size_t limit = std::string::npos);

/// A picture that other formats know, too.
struct PictureData {
  PictureType type = PictureType::Png;  // or Jpeg
  std::string bytes{};
  int width = 0;  // twips; 0 unknown
  int height = 0;
};
std::string PictureGroup(const PictureData& picture);
/// The picture in a piece of kept source, if it is of these types.
std::optional<PictureData> PictureOf(std::string_view source);

}  // namespace lumenote
