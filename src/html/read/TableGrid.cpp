#include "html/read/TableGrid.h"

#include <algorithm>
#include <utility>

namespace lumenote {
namespace {

constexpr std::size_t kMostWidths = 1000;  // columns whose width is remembered
constexpr std::int64_t kTextWidth = 9000;  // twips
constexpr std::int64_t kLeastWidth = 300;
constexpr std::int64_t kWidestRow = 1'000'000;

}  // namespace

void TableGrid::AddColumns(int count, int width) {
  const std::size_t all = widths_.size() + static_cast<std::size_t>(count);
  widths_.resize(std::min(all, kMostWidths), width);
}

void TableGrid::Add(const Cell& cell) {
  const Placed placed = {column_, cell};
  row_.push_back(placed);
  if (cell.rows > 1 && goingOn_ < kMostGoingOn) {
    ++goingOn_;
    below_.push_back(placed);
    --below_.back().cell.rows;
    below_.back().cell.goesOn = true;
  }
  column_ += cell.columns;
  while (nextAbove_ < above_.size() && above_[nextAbove_].column < column_) ++nextAbove_;
}

bool TableGrid::AddGoingOn() {
  if (nextAbove_ == above_.size() || above_[nextAbove_].column != column_) return false;
  Add(above_[nextAbove_].cell);
  return true;
}

bool TableGrid::AddGap() {
  if (nextAbove_ == above_.size()) return false;
  Add({.columns = above_[nextAbove_].column - column_});
  return true;
}

/// The width that the cell or its columns state, 0 if they do not.
int TableGrid::WidthOf(const Placed& placed) const {
  if (placed.cell.width > 0) return placed.cell.width;
  std::int64_t width = 0;
  for (int i = 0; i < placed.cell.columns; ++i) {
    const auto column = static_cast<std::size_t>(placed.column) + static_cast<std::size_t>(i);
    if (column >= widths_.size() || widths_[column] == 0) return 0;
    width += widths_[column];
  }
  return static_cast<int>(std::min(width, kWidestRow));
}

void TableGrid::Learn(const Placed& placed) {
  const auto column = static_cast<std::size_t>(placed.column);
  if (placed.cell.columns != 1 || placed.cell.width == 0 || column >= kMostWidths) return;
  if (widths_.size() <= column) widths_.resize(column + 1);
  if (widths_[column] == 0) widths_[column] = placed.cell.width;
}

std::vector<RowCell> TableGrid::EndRow() {
  columns_ = std::max(columns_, column_);
  std::int64_t known = 0;
  std::int64_t unknown = columns_ - column_;  // columns
  for (const Placed& placed : row_) {
    Learn(placed);
    known += WidthOf(placed);
    if (WidthOf(placed) == 0) unknown += placed.cell.columns;
  }
  const std::int64_t rest = std::max(kTextWidth - known, kLeastWidth * unknown);
  std::vector<RowCell> cells;
  std::int64_t left = 0;     // of the known widths so far
  std::int64_t columns = 0;  // unknown ones so far
  for (const Placed& placed : row_) {
    left += WidthOf(placed);
    if (WidthOf(placed) == 0) columns += placed.cell.columns;
    const std::int64_t edge = left + (unknown > 0 ? rest * columns / unknown : 0);
    cells.push_back({.edge = static_cast<std::int32_t>(std::min(edge, kWidestRow)),
                     .merge = placed.cell.goesOn     ? RowCell::Merge::GoesOn
                              : placed.cell.rows > 1 ? RowCell::Merge::Begins
                                                     : RowCell::Merge::None});
  }
  row_.clear();
  column_ = 0;
  nextAbove_ = 0;
  above_ = std::exchange(below_, {});
  return cells;
}

}  // namespace lumenote
