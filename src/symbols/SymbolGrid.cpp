#include "symbols/SymbolGrid.h"

namespace lumenote {

namespace {

constexpr float kOverlap = 20;  // neighbours share their borders
constexpr float kLeftEdge = 100;
constexpr float kTopShare = 0.7F;  // of a row that lies above the first one

}  // namespace

SymbolGrid LayOutSymbols(int offset, const GridMeasures& measures) {
  SymbolGrid grid;
  const float across = measures.cellWidth - kOverlap;
  const float down = measures.cellHeight - kOverlap;
  int row = 1;
  int column = 0;
  const auto beginRow = [&] {
    const float top = (static_cast<float>(row) - kTopShare) * down;
    if (top + measures.cellHeight > measures.boxHeight) ++grid.hiddenRows;
  };
  for (int code = kFirstSymbol + offset; code <= kLastSymbol; ++code) {
    if (column == 0) beginRow();
    float left = kLeftEdge + static_cast<float>(column) * across;
    if (column > 0 && left + measures.cellWidth > measures.boxWidth) {
      if (grid.columns == 0) grid.columns = static_cast<std::int16_t>(column);
      ++row;
      column = 0;
      left = kLeftEdge;
      beginRow();
    }
    ++column;
    grid.cells.push_back({code, left, (static_cast<float>(row) - kTopShare) * down});
  }
  return grid;
}

}  // namespace lumenote
