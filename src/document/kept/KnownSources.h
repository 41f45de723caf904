// The RTF source of the kept items that other formats know, too: made and read here.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// What stands before the characters of a link.
std::string LinkOpening(std::u16string_view address);
/// Where a field with that opening leads, if it is a link; "#name" within the note.
std::optional<std::u16string> LinkAddress(std::string_view opening);

/// The group that numbers a paragraph; `style` is one of "1aAiI", as in HTML.
std::string NumberingGroup(char style, int start);

/// The definition of a table row whose cells end at `edges`, in twips from the left.
std::string RowDefinition(const std::vector<std::int32_t>& edges, bool borders);
bool HasBorders(std::string_view rowDefinition);

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
