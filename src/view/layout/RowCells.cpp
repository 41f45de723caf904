#include "view/layout/RowCells.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "document/BorderSource.h"

namespace lumenote {

namespace {

constexpr double kLeastWidth = 240;  // twips
constexpr int kLeastPadding = 45;    // twips; text never touches a line

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

std::vector<CellBox> CellsBetween(const Document& document, Position start, Position end) {
  std::vector<CellBox> cells;
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
void SetEdges(std::vector<CellBox>& cells, const std::vector<std::int32_t>& stated,
              const RowFrame& frame, const TextLayouter& layouter) {
  const double least = layouter.Pixels(kLeastWidth);
  std::size_t next = stated.size() - std::min(stated.size(), cells.size());
  double left = std::max(0.0, layouter.Pixels(next == 0 ? frame.left : stated[next - 1]));
  const double padding = std::round(layouter.Pixels(std::max(frame.gap, kLeastPadding)));
  auto sharing = static_cast<double>(cells.size());
  for (CellBox& cell : cells) {
    const double share = left + (layouter.Width() - left) / sharing--;
    const double right = next < stated.size() ? layouter.Pixels(stated[next++]) : share;
    cell.left = left;
    left = cell.right = std::max(right, left + least);
    cell.padding = std::min(padding, std::floor((cell.right - cell.left) / 4));
  }
}

int EndOf(const CellBox& cell, const Piece& row) {
  const int index = cell.end - row.from;
  return index > row.composedAt ? index + row.composedLength : index;
}

}  // namespace

const Kept* RowAt(const Document& document, Position position) {
  const Position end = document.ParagraphEnd(document.ParagraphOf(position));
  const Kept& kept = KeptOf(document.Formats(), document.CharFormatAt(end));
  return kept.kind == Kept::Kind::Row ? &kept : nullptr;
}

std::vector<CellBox> RowCellsAt(const TextLayouter& layouter, const Document& document,
                                Position position) {
  const Kept* row = RowAt(document, position);
  if (!row) return {};
  const Position paragraph = document.ParagraphOf(position);
  std::vector<CellBox> cells =
      CellsBetween(document, document.ParagraphStart(paragraph), document.ParagraphEnd(paragraph));
  const FormatTables& tables = document.Formats();
  SetEdges(cells, StatedEdges(tables, row->self), RowFrameOf(tables, row->self), layouter);
  return cells;
}

PieceSpan SpanOf(const std::vector<CellBox>& cells, const Document& document,
                 const PieceSpan& wanted) {
  if (cells.empty()) return wanted;
  const Position paragraph = document.ParagraphOf(wanted.from);
  return {.from = document.ParagraphStart(paragraph), .to = document.ParagraphEnd(paragraph)};
}

std::vector<int> EndsOf(const std::vector<CellBox>& cells, const Piece& row, int length) {
  std::vector<int> ends;
  ends.reserve(cells.size() + 1);
  for (const CellBox& cell : cells) ends.push_back(EndOf(cell, row));
  if (ends.empty()) ends.push_back(length);
  ends.back() = length;
  return ends;
}

}  // namespace lumenote
