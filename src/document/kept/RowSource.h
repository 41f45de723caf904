// The source of table rows, which other formats know, too: made and read here.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

struct RowCell {
  /// With the cells of the same width below it.
  enum class Merge : std::uint8_t { None, Begins, GoesOn };
  std::int32_t edge = 0;  // the right one, twips from the left
  Merge merge = Merge::None;
};

/// The definition of a table row.
std::string RowDefinition(const std::vector<RowCell>& cells, bool borders);
bool HasBorders(std::string_view rowDefinition);
/// How each cell that a definition states is merged.
std::vector<RowCell::Merge> MergesIn(std::string_view rowDefinition);

}  // namespace lumenote
