// Layout of the symbol grid.
#pragma once
#include <cstdint>
#include <vector>

namespace lumenote {

inline constexpr int kFirstSymbol = 33;
inline constexpr int kLastSymbol = 255;

/// One cell; its position is in twips from the corner of the enclosing box.
struct SymbolCell {
  int code = 0;
  float left = 0;
  float top = 0;
};

struct SymbolGrid {
  std::vector<SymbolCell> cells;
  std::int16_t columns = 0;     // cells in the first row if it is full, else 0
  std::int16_t hiddenRows = 0;  // rows that extend below the box
};

/// Sizes in twips.
struct GridMeasures {
  float cellWidth;
  float cellHeight;
  float boxWidth;
  float boxHeight;
};

/// Lays out the grid from `offset` codes after the first symbol on. Cells must be wider than their
/// overlap.
SymbolGrid LayOutSymbols(int offset, const GridMeasures& measures);

}  // namespace lumenote
