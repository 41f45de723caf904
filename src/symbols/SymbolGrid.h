// The arithmetic of the symbol grid.
#pragma once
#include <cstdint>
#include <vector>

namespace lumenote {

inline constexpr int kFirstSymbol = 33;
inline constexpr int kLastSymbol = 255;

/// Where one cell stands, in twips of the box that holds the grid.
struct SymbolCell {
  int code = 0;
  float left = 0;
  float top = 0;
};

struct SymbolGrid {
  std::vector<SymbolCell> cells;
  std::int16_t columns = 0;     // cells of the first row when it is full, else 0
  std::int16_t hiddenRows = 0;  // rows that reach below the box
};

/// Sizes in twips.
struct GridMeasures {
  float cellWidth;
  float cellHeight;
  float boxWidth;
  float boxHeight;
};

/// The grid that starts `offset` codes behind the first symbol. Cells are wider than they overlap.
SymbolGrid LayOutSymbols(int offset, const GridMeasures& measures);

}  // namespace lumenote
