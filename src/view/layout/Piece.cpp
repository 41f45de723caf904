#include "view/layout/Piece.h"

#include <algorithm>

#include "document/tables/TableRow.h"

namespace lumenote {

int Piece::ToIndex(Position position) const {
  const int index = position - from;
  if (composedLength == 0 || index < composedAt) return index;
  return index == composedAt ? index + composedCaret : index + composedLength;
}

Position Piece::ToPosition(int index) const {
  if (index <= composedAt) return from + index;
  return from + std::max(composedAt, index - composedLength);
}

int Piece::LineOfIndex(int index) const {
  const auto behind =
      std::upper_bound(lines.begin() + 1, lines.end(), index,
                       [](int value, const PieceLine& line) { return value < line.start; });
  return static_cast<int>(behind - lines.begin()) - 1;
}

bool Piece::BeginsLine(const Document& document, int line) const {
  if (cells.empty() || line == 0) return true;
  const char16_t before = document.At(LineStart(line) - 1);
  return before == u'\v' || before == u'\n';
}

double Piece::XOf(Position position) const { return CaretX(LineOf(position), ToIndex(position)); }

// The position after the last character of a wrapped line is the next line's start, so the caret
// would be shown there.
Position Piece::PositionAt(int line, double x) const {
  const PieceLine& box = lines[Index(line)];
  int index = CaretAt(line, x);
  if (box.ending > 0) return ToPosition(std::min(index, box.end - box.ending));
  const bool goesOn = !closes || Index(line) + 1 < lines.size();
  if (goesOn && index >= box.end && box.end > box.start) index = CaretBefore(box.end);
  return ToPosition(index);
}

const InlineBox* Piece::BoxAt(int index) const {
  const auto box = std::ranges::lower_bound(boxes, index, {}, &InlineBox::index);
  return box != boxes.end() && box->index == index ? &*box : nullptr;
}

PixelRect Piece::PlaceOf(const InlineBox& box) const {
  const int line = LineOfIndex(box.index);
  const double left = std::min(CaretX(line, box.index), CaretX(line, box.index + 1));
  const double bottom = lines[Index(line)].baseline;
  return {left, bottom - box.size.height, left + box.size.width, bottom};
}

Position Piece::CharacterAt(int line, double x) const {
  const int unit = UnitAt(line, x);
  return unit < 0 ? -1 : ToPosition(unit);
}

// --- cells

int Piece::CellOf(int line) const {
  const auto behind = std::ranges::upper_bound(cells, line, {}, &PieceCell::firstLine);
  auto cell = std::prev(behind);
  while (!cell->Has(line)) --cell;
  return static_cast<int>(cell - cells.begin());
}

/// The row's cell nearest to `x`.
int Piece::CellNear(int row, double x) const {
  int nearest = -1;
  for (int cell = 0; cell < std::ssize(cells); ++cell) {
    if (cells[Index(cell)].row != row) continue;
    nearest = cell;
    if (x < cells[Index(cell)].right) break;
  }
  return nearest;
}

/// The first (last) line of a row at `x`, where a table may begin (end) the cell in its turn.
int Piece::EnterRow(int row, bool below, double x) const {
  for (;;) {
    const int cell = CellNear(row, x);
    const PieceCell& entered = cells[Index(cell)];
    const int line = below ? entered.firstLine : entered.endLine - 1;
    int inner = CellOf(line);
    if (inner == cell) return line;
    while (cells[Index(inner)].parent != cell) inner = cells[Index(inner)].parent;
    row = cells[Index(inner)].row;
  }
}

int Piece::LineAtEdge(bool first, double x) const { return EnterRow(0, first, x); }

int Piece::LineBeside(int line, bool below, double x) const {
  int next = below ? line + 1 : line - 1;
  for (int cell = CellOf(line); cell >= 0; cell = cells[Index(cell)].parent) {
    if (cells[Index(cell)].Has(next)) {
      int inner = CellOf(next);
      if (inner == cell) return next;
      while (cells[Index(inner)].parent != cell) inner = cells[Index(inner)].parent;
      return EnterRow(cells[Index(inner)].row, below, x);
    }
    for (const PieceCell& beside : cells)
      if (beside.row == cells[Index(cell)].row)
        next = below ? std::max(next, beside.endLine) : std::min(next, beside.firstLine - 1);
  }
  return -1;
}

std::span<const PieceLine> Piece::LinesAt(double x) const {
  if (cells.empty()) return lines;
  const PieceCell& cell = cells[Index(CellNear(0, x))];
  return std::span(lines).subspan(Index(cell.firstLine), Index(cell.endLine - cell.firstLine));
}

/// The innermost cell at a point or, beside the cells, the nearest of the row there.
int Piece::CellAt(double y, double x) const {
  int found = CellNear(0, x);
  for (int cell = found + 1; cell < std::ssize(cells); ++cell) {
    const PieceCell& inner = cells[Index(cell)];
    if (inner.parent == found && y >= inner.top && y < inner.bottom)
      cell = found = CellNear(inner.row, x);
  }
  return found;
}

int Piece::LineAt(double y, double x) const {
  const int cell = cells.empty() ? -1 : CellAt(y, x);
  int nearest = -1;
  for (const PieceLine& line : LinesAt(x)) {
    const int number = static_cast<int>(&line - lines.data());
    if (cell >= 0 && CellOf(number) != cell) continue;
    nearest = number;
    if (y < line.top + line.height) break;
  }
  return nearest;
}

PieceLine Piece::Row() const {
  PieceLine row{.start = lines.front().start, .end = lines.back().end, .top = lines.front().top};
  for (const PieceLine& line : lines) {
    row.top = std::min(row.top, line.top);
    row.height = std::max(row.height, line.top + line.height);
    row.look = row.look * 31 + line.look;
  }
  for (const PieceCell& cell : cells)
    row.look = row.look * 31 + static_cast<std::size_t>(cell.left + 7 * cell.right);
  row.height -= row.top;
  row.baseline = lines.front().baseline;
  return row;
}

bool Piece::IsSound(const Document& document) const {
  const Position paragraph = document.ParagraphOf(from);
  const auto row = RowAround(document, from);
  const Position end = row ? row->end : document.ParagraphEnd(paragraph);
  return HasOrderedParts() && to <= end && opens == (from == document.ParagraphStart(paragraph)) &&
         (!closes || to == end) && cells.empty() != row.has_value() &&
         (!row || (from == row->start && opens && closes)) && format == document.ParaFormatAt(from);
}

// Lines cover the text without gaps, and only the last one may be empty.
bool Piece::HasOrderedParts() const {
  if (lines.empty() || lines.front().start != 0 || ToPosition(lines.back().end) != to) return false;
  const auto apart = [](const PieceLine& line, const PieceLine& next) {
    return line.end != next.start || line.start >= next.start;
  };
  return std::ranges::adjacent_find(lines, apart) == lines.end() &&
         std::ranges::is_sorted(runs, {}, &PieceRun::start) &&
         std::ranges::is_sorted(boxes, {}, &InlineBox::index) &&
         std::ranges::is_sorted(bullets, {}, &PieceBullet::line) &&
         std::ranges::is_sorted(cells, {}, &PieceCell::firstLine);
}

}  // namespace lumenote
