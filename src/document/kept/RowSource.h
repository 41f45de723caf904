// The source of table rows, which other formats know, too: made and read here.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumenote {

/// The definition of a table row whose cells end at `edges`, in twips from the left.
std::string RowDefinition(const std::vector<std::int32_t>& edges, bool borders);
bool HasBorders(std::string_view rowDefinition);

}  // namespace lumenote
