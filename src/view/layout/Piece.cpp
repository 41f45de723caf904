#include "view/layout/Piece.h"

#include <algorithm>

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
  return cells.empty() || line == 0 || document.At(LineStart(line) - 1) == u'\v';
}

double Piece::XOf(Position position) const { return CaretX(LineOf(position), ToIndex(position)); }

// The position after the last character of a wrapped line is the next line's start, so the caret
// would be shown there.
Position Piece::PositionAt(int line, double x) const {
  const PieceLine& box = lines[Index(line)];
  int index = CaretAt(line, x);
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

std::span<const PieceLine> Piece::LinesAt(double x) const {
  if (cells.empty()) return lines;
  const auto last = std::prev(cells.end());
  const auto cell =
      std::find_if(cells.begin(), last, [&](const PieceCell& one) { return x < one.right; });
  const std::size_t end = cell == last ? lines.size() : Index(std::next(cell)->firstLine);
  return std::span(lines).subspan(Index(cell->firstLine), end - Index(cell->firstLine));
}

int Piece::LineAt(double y, double x) const {
  const std::span<const PieceLine> column = LinesAt(x);
  const auto below = std::find_if(column.begin(), column.end(), [&](const PieceLine& line) {
    return y < line.top + line.height;
  });
  return static_cast<int>((below == column.end() ? &column.back() : &*below) - lines.data());
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
  const Position end = document.ParagraphEnd(paragraph);
  return HasOrderedParts() && to <= end && opens == (from == document.ParagraphStart(paragraph)) &&
         (!closes || to == end) && (cells.empty() || (opens && closes)) &&
         format == document.ParaFormatAt(from);
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
         std::ranges::is_sorted(cells, {}, &PieceCell::firstLine);
}

}  // namespace lumenote
