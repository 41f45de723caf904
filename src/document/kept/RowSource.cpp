#include "document/kept/RowSource.h"

#include <utility>

#include "document/kept/SourceTokens.h"

namespace lumenote {

using Merge = RowCell::Merge;

std::string RowDefinition(const std::vector<RowCell>& cells, bool borders) {
  constexpr std::string_view kMerges[] = {"", "\\clvmgf", "\\clvmrg"};
  constexpr std::string_view kSides[] = {"t", "l", "b", "r"};
  std::string source = "\\trowd\\trgaph70";
  for (const RowCell& cell : cells) {
    source += kMerges[static_cast<std::size_t>(cell.merge)];
    if (borders)
      for (const std::string_view side : kSides)
        source.append("\\clbrdr").append(side).append("\\brdrs\\brdrw10");
    source += "\\cellx" + std::to_string(cell.edge);
  }
  return source;
}

bool HasBorders(std::string_view rowDefinition) {
  return rowDefinition.find("\\clbrdr") != rowDefinition.npos;
}

std::vector<Merge> MergesIn(std::string_view rowDefinition) {
  std::vector<Merge> merges;
  Merge merge = Merge::None;
  SourceTokens tokens(rowDefinition);
  while (const auto token = tokens.Next()) {
    if (token->word == "clvmgf") merge = Merge::Begins;
    if (token->word == "clvmrg") merge = Merge::GoesOn;
    if (token->word == "cellx") merges.push_back(std::exchange(merge, Merge::None));
  }
  return merges;
}

}  // namespace lumenote
