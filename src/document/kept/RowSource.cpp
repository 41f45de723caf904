#include "document/kept/RowSource.h"

namespace lumenote {

std::string RowDefinition(const std::vector<std::int32_t>& edges, bool borders) {
  constexpr std::string_view kSides[] = {"t", "l", "b", "r"};
  std::string source = "\\trowd\\trgaph70";
  for (const std::int32_t edge : edges) {
    if (borders)
      for (const std::string_view side : kSides)
        source.append("\\clbrdr").append(side).append("\\brdrs\\brdrw10");
    source += "\\cellx" + std::to_string(edge);
  }
  return source;
}

bool HasBorders(std::string_view rowDefinition) {
  return rowDefinition.find("\\clbrdr") != rowDefinition.npos;
}

}  // namespace lumenote
