#include "symbols/SymbolGrid.h"

namespace lumenote {

namespace {

constexpr float kOverlap = 20;  // neighbours share a border
constexpr float kLeftEdge = 100;
constexpr float kTopShare = 0.7F;  // of a row scrolled above the top edge

}  // namespace

SymbolGrid LayOutSymbols(int offset, const GridMeasures& measures) {
  const auto leftOf = [&](int column) {
    return kLeftEdge + static_cast<float>(column) * (measures.cellWidth - kOverlap);
  };
  const auto topOf = [&](int row) {
    return (static_cast<float>(row + 1) - kTopShare) * (measures.cellHeight - kOverlap);
  };
  int columns = 1;
  while (leftOf(columns) + measures.cellWidth <= measures.boxWidth) ++columns;

  SymbolGrid grid;
  for (int code = kFirstSymbol + offset; code <= kLastSymbol; ++code) {
    const int index = static_cast<int>(grid.cells.size());
    const float top = topOf(index / columns);
    const bool beginsRow = index % columns == 0;
    if (beginsRow && top + measures.cellHeight > measures.boxHeight) ++grid.hiddenRows;
    if (beginsRow && index > 0) grid.columns = static_cast<std::int16_t>(columns);
    grid.cells.push_back({code, leftOf(index % columns), top});
  }
  return grid;
}

}  // namespace lumenote
