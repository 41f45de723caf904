#include "view/layout/RowCells.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "document/BorderSource.h"
#include "document/tables/CellParagraphs.h"
#include "document/tables/TableRow.h"

namespace lumenote {

namespace {

constexpr double kLeastWidth = 240;  // twips
constexpr int kLeastPadding = 45;    // twips; text never touches a line

/// The right edges, in twips, in the last row definition among the items.
std::vector<std::int32_t> StatedEdges(const FormatTables& tables, ItemId items) {
  std::vector<std::int32_t> edges;
  tables.items.ForEach(items, [&](const KeptItem& item) {
    if (item.kind == KeptItem::Kind::Row) edges.clear();
    edges.insert(edges.end(), item.cells.begin(), item.cells.end());
  });
  return edges;
}

/// Finds the cells of a row and of the tables in it.
class CellFinder {
 public:
  CellFinder(const FormatTables& tables, const Piece& piece, RowCells& found)
      : tables_(tables), piece_(piece), found_(found) {}

  void Take(const CellParagraph& paragraph);

 private:
  void Open(int row, int parent) {
    open_.push_back(static_cast<int>(found_.cells.size()));
    found_.cells.push_back({.row = row, .parent = parent});
  }
  int IndexOf(Position end) const {
    const int index = end - piece_.from;
    return index > piece_.composedAt ? index + piece_.composedLength : index;
  }

  const FormatTables& tables_;
  const Piece& piece_;
  RowCells& found_;
  std::vector<int> open_;  // the cells around what comes next, the innermost last
};

void CellFinder::Take(const CellParagraph& paragraph) {
  while (open_.empty() || std::ssize(open_) < paragraph.level) {
    Open(static_cast<int>(found_.rows.size()), open_.empty() ? -1 : open_.back());
    found_.rows.push_back(0);
  }
  const int cell = open_.back();
  const auto [row, parent, left, right, padding] = found_.cells[static_cast<std::size_t>(cell)];
  const int units = paragraph.end == piece_.to ? 0 : paragraph.endsCell ? 1 : 2;
  found_.texts.push_back({IndexOf(paragraph.end + units), units, cell, paragraph.format});
  if (!paragraph.endsCell && !paragraph.endsRow) return;
  open_.pop_back();
  if (paragraph.endsCell)
    Open(row, parent);
  else
    found_.rows[static_cast<std::size_t>(row)] =
        tables_.kept[tables_.characters[paragraph.ender].kept].self;
}

/// Gives the cells of a row their edges.
class EdgeSetter {
 public:
  EdgeSetter(const TextLayouter& layouter, const FormatTables& tables, RowCells& found)
      : layouter_(layouter), tables_(tables), found_(found), cells_(found.rows.size()) {
    for (CellBox& cell : found.cells) cells_[static_cast<std::size_t>(cell.row)].push_back(&cell);
  }

  // Rows come behind those around them.
  void Set() {
    for (std::size_t row = 0; row < cells_.size(); ++row) SetRow(cells_[row], found_.rows[row]);
  }

 private:
  void SetRow(const std::vector<CellBox*>& cells, ItemId definition) const;
  static void Fit(const std::vector<CellBox*>& cells, double left, double room);

  const TextLayouter& layouter_;
  const FormatTables& tables_;
  RowCells& found_;
  std::vector<std::vector<CellBox*>> cells_;  // of each row
};

/// Gives each cell the stated edge, or an equal share of what is left of the line; of more edges
/// than cells, the last ones.
void EdgeSetter::SetRow(const std::vector<CellBox*>& cells, ItemId definition) const {
  const std::vector<std::int32_t> stated = StatedEdges(tables_, definition);
  const RowFrame frame = RowFrameOf(tables_, definition);
  const int parent = cells.front()->parent;
  const CellBox* around = parent < 0 ? nullptr : &found_.cells[static_cast<std::size_t>(parent)];
  const double from = around ? around->TextLeft() : 0;
  const double room = around ? around->Room() : layouter_.Width();
  const double least = layouter_.Pixels(kLeastWidth);
  std::size_t next = stated.size() - std::min(stated.size(), cells.size());
  double left = std::max(0.0, layouter_.Pixels(next == 0 ? frame.left : stated[next - 1]));
  auto sharing = static_cast<double>(cells.size());
  for (CellBox* cell : cells) {
    const double share = left + (room - left) / sharing--;
    const double right = next < stated.size() ? layouter_.Pixels(stated[next++]) : share;
    cell->left = from + left;
    left = std::max(right, left + least);
    cell->right = from + left;
  }
  Fit(cells, from, around ? room : layouter_.WidestTable());
  const double padding = std::round(layouter_.Pixels(std::max(frame.gap, kLeastPadding)));
  for (CellBox* cell : cells)
    cell->padding = std::min(padding, std::floor((cell->right - cell->left) / 4));
}

/// Narrows the cells to what there is room for.
void EdgeSetter::Fit(const std::vector<CellBox*>& cells, double left, double room) {
  const double share = room / (cells.back()->right - left);
  if (share >= 1) return;
  for (CellBox* cell : cells) {
    cell->left = left + (cell->left - left) * share;
    cell->right = left + (cell->right - left) * share;
  }
}

}  // namespace

const CellText& RowCells::TextAt(int index) const {
  const auto text = std::ranges::upper_bound(texts, index, {}, &CellText::end);
  return text == texts.end() ? texts.back() : *text;
}

PieceSpan SpanOf(const Document& document, const PieceSpan& wanted) {
  const auto row = RowAround(document, wanted.from);
  return row ? PieceSpan{.from = row->start, .to = row->end} : wanted;
}

RowCells RowCellsOf(const TextLayouter& layouter, const Document& document, const Piece& piece) {
  RowCells found;
  if (!piece.opens || !piece.closes || !RowEndAt(document, piece.to)) return found;
  const FormatTables& tables = document.Formats();
  CellFinder finder(tables, piece, found);
  for (const CellParagraph& paragraph :
       FindCellParagraphs(document, {piece.from, piece.to}, LastBreak::Inside))
    finder.Take(paragraph);
  EdgeSetter(layouter, tables, found).Set();
  return found;
}

std::vector<int> EndsOf(const RowCells& row, int length) {
  std::vector<int> ends;
  ends.reserve(row.texts.size() + 1);
  for (const CellText& text : row.texts) ends.push_back(text.end);
  if (ends.empty()) ends.push_back(length);
  ends.back() = length;
  return ends;
}

}  // namespace lumenote
