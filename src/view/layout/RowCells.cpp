#include "view/layout/RowCells.h"

#include <algorithm>
#include <cstdint>

namespace lumenote {

namespace {

constexpr double kLeastWidth = 240;  // twips

const Kept& KeptOf(const FormatTables& tables, CharId format) {
  return tables.kept[tables.characters[format].kept];
}

/// The right edges, in twips, in the last row definition among the items.
std::vector<std::int32_t> StatedEdges(const FormatTables& tables, ItemId items) {
  std::vector<std::int32_t> edges;
  tables.items.ForEach(items, [&](const KeptItem& item) {
    if (item.kind == KeptItem::Kind::Row) edges.clear();
    edges.insert(edges.end(), item.cells.begin(), item.cells.end());
  });
  return edges;
}

std::vector<RowCell> CellsBetween(const Document& document, Position start, Position end) {
  std::vector<RowCell> cells;
  document.ForEachRun(start, end, [&](Position at, TextView text, CharId format) {
    if (KeptOf(document.Formats(), format).kind != Kept::Kind::Cell) return;
    for (const char16_t c : text.String()) {
      ++at;
      if (c == u'\t') cells.push_back({.end = at});
    }
  });
  cells.push_back({.end = end});
  return cells;
}

/// Gives each cell the stated edge, or an equal share of what is left of the line; of more edges
/// than cells, the last ones.
void SetEdges(std::vector<RowCell>& cells, const std::vector<std::int32_t>& stated,
              const TextLayouter& layouter) {
  const double least = layouter.Pixels(kLeastWidth);
  std::size_t next = stated.size() - std::min(stated.size(), cells.size());
  double left = next == 0 ? 0 : layouter.Pixels(stated[next - 1]);
  auto sharing = static_cast<double>(cells.size());
  for (RowCell& cell : cells) {
    const double share = left + (layouter.Width() - left) / sharing--;
    const double right = next < stated.size() ? layouter.Pixels(stated[next++]) : share;
    cell.left = left;
    left = cell.right = std::max(right, left + least);
  }
}

}  // namespace

std::vector<RowCell> RowCellsAt(const TextLayouter& layouter, const Document& document,
                                Position position) {
  const Position paragraph = document.ParagraphOf(position);
  const Position end = document.ParagraphEnd(paragraph);
  const Kept& row = KeptOf(document.Formats(), document.CharFormatAt(end));
  if (row.kind != Kept::Kind::Row) return {};
  std::vector<RowCell> cells = CellsBetween(document, document.ParagraphStart(paragraph), end);
  SetEdges(cells, StatedEdges(document.Formats(), row.self), layouter);
  return cells;
}

int EndOf(const RowCell& cell, const Piece& row, bool last) {
  const int index = cell.end - row.from;
  return last || index > row.composedAt ? index + row.composedLength : index;
}

}  // namespace lumenote
