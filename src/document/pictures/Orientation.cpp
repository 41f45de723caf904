#include "document/pictures/Orientation.h"

#include <cmath>
#include <utility>

#include "document/pictures/ByteOrder.h"
#include "document/pictures/ImageSize.h"

namespace lumenote {
namespace {

using namespace std::string_view_literals;

/// A directory of values as TIFF has it, in either order of bytes.
class Tiff {
 public:
  explicit Tiff(std::string_view data) : data_(data), big_(data.starts_with("MM")) {}

  std::uint32_t Short(std::size_t at) const {
    if (data_.size() < 2 || at > data_.size() - 2) return 0;
    return big_ ? BigEndian16(data_, at) : LittleEndian16(data_, at);
  }
  std::uint32_t Long(std::size_t at) const {
    return big_ ? Short(at) << 16 | Short(at + 2) : Short(at) | Short(at + 2) << 16;
  }
  /// Of the first directory; 0 if it has no such value.
  std::uint32_t ShortWithTag(std::uint32_t tag) const {
    constexpr std::uint32_t kShort = 3;
    constexpr std::size_t kEntry = 12;
    const std::size_t directory = Long(4);
    const std::size_t count = Short(directory);
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t at = directory + 2 + i * kEntry;
      if (Short(at) == tag) return Short(at + 2) == kShort ? Short(at + 8) : 0;
    }
    return 0;
  }

 private:
  std::string_view data_;
  bool big_;
};

/// As numbered by cameras.
Orientation Numbered(std::uint32_t number) {
  switch (number) {
    case 2:
      return {false, true, false};
    case 3:
      return {false, true, true};
    case 4:
      return {false, false, true};
    case 5:
      return {true, false, false};
    case 6:
      return {true, true, false};
    case 7:
      return {true, true, true};
    case 8:
      return {true, false, true};
    default:
      return {};
  }
}

/// How far two proportions are apart.
double Distance(double one, double other) { return std::abs(std::log(one / other)); }

}  // namespace

Orientation OrientationOf(std::string_view file) {
  constexpr std::uint32_t kOrientation = 0x0112;
  constexpr std::string_view kExif = "Exif\0\0"sv;
  constexpr std::size_t kSegmentHead = 4;
  if (TypeOfImage(file) != PictureType::Jpeg) return {};
  for (std::size_t at = 2; at + kSegmentHead < file.size() && file[at] == '\xFF';) {
    const std::size_t length = BigEndian16(file, at + 2);
    const std::string_view segment = file.substr(at + kSegmentHead, length);
    if (file[at + 1] == '\xE1' && segment.starts_with(kExif))
      return Numbered(Tiff(segment.substr(kExif.size())).ShortWithTag(kOrientation));
    if (file[at + 1] == '\xDA') break;  // the image itself
    at += file[at + 1] == '\xFF' ? 1 : 2 + length;
  }
  return {};
}

Orientation OrientationIn(const PictureFrame& frame, std::string_view file) {
  const Orientation turn = OrientationOf(file);
  const auto size = SizeOfImage(PictureType::Jpeg, file);
  if (!turn.exchanged || !size) return turn;
  const double shape = frame.width / (frame.right - frame.left) * (frame.bottom - frame.top);
  const double turned = Distance(shape / frame.height, size->width / size->height);
  const double unturned = Distance(shape / frame.height, size->height / size->width);
  return turned <= unturned ? turn : Orientation{};
}

PictureFrame BeforeTurning(const PictureFrame& frame, const Orientation& turn) {
  PictureFrame before = frame;
  if (turn.mirrored) {
    before.left = 1 - frame.right;
    before.right = 1 - frame.left;
  }
  if (turn.upsideDown) {
    before.top = 1 - frame.bottom;
    before.bottom = 1 - frame.top;
  }
  if (turn.exchanged) {
    std::swap(before.width, before.height);
    std::swap(before.left, before.top);
    std::swap(before.right, before.bottom);
  }
  return before;
}

}  // namespace lumenote
