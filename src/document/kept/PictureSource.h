// The source of pictures, which other formats know, too: made and read here.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

enum class PictureType : std::uint8_t { Png, Jpeg };
struct PictureData {
  PictureType type = PictureType::Png;
  std::string bytes{};
  int width = 0;  // twips; 0 unknown
  int height = 0;
};
std::string PictureGroup(const PictureData& picture);
/// The picture of such a group, if it is of these types.
std::optional<PictureData> PictureOf(std::string_view group);

}  // namespace lumenote
