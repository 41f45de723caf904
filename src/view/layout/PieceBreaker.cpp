#include "view/layout/PieceBreaker.h"

#include <algorithm>
#include <utility>

#include "view/layout/RowCells.h"

namespace lumenote {

namespace {
// Lines rarely have more characters.
constexpr Position kLineLength = 300;
}  // namespace

std::unique_ptr<Piece> PieceBreaker::LayOut(const Document& document, const PieceSpan& span) {
  Composition composed = layouter_.Composed();
  layouter_.Composed({});
  auto piece = layouter_.LayOut(document, span);
  layouter_.Composed(std::move(composed));
  return piece;
}

std::vector<Position> PieceBreaker::Break(const Document& document, Position from, Position to) {
  const auto piece = LayOut(document, {.from = from, .to = to});
  std::vector<Position> starts;
  for (int line = 1; line < std::ssize(piece->lines); ++line)
    if (const Position start = piece->LineStart(line);
        start > from && piece->BeginsLine(document, line))
      starts.push_back(start);
  return starts;
}

/// A piece in which a line starts at `lineStart`: its first line, except in a row of cells.
std::unique_ptr<Piece> PieceBreaker::LineFrom(const Document& document, Position lineStart) {
  const Position end = document.ParagraphEnd(document.ParagraphOf(lineStart));
  for (Position length = kLineLength;; length *= 2) {
    const bool complete = length >= end - lineStart;
    const Position to = complete ? end : document.SnapBackward(lineStart + length);
    if (auto piece = LayOut(document, {.from = lineStart, .to = to, .complete = complete}))
      return piece;
  }
}

float PieceBreaker::XOf(const Document& document, Position lineStart, Position position) {
  const auto piece = LineFrom(document, lineStart);
  const int line = piece->LineOf(lineStart);
  const int end = piece->lines[static_cast<std::size_t>(line)].end;
  return static_cast<float>(piece->CaretX(line, std::min(piece->ToIndex(position), end)));
}

Position PieceBreaker::AtX(const Document& document, Position lineStart, Position lineEnd,
                           float x) {
  const auto piece = LineFrom(document, lineStart);
  return std::clamp(piece->PositionAt(piece->LineOf(lineStart), x), lineStart, lineEnd);
}

std::vector<CellLine> PieceBreaker::CellLines(const Document& document, Position position) {
  if (!RowAt(document, position)) return {};
  const Position end = document.ParagraphEnd(document.ParagraphOf(position));
  const auto row = LayOut(document, {.from = position, .to = end});
  std::vector<CellLine> lines;
  int cell = 0;
  for (int line = 0; line < std::ssize(row->lines); ++line) {
    while (cell + 1 < std::ssize(row->cells) && row->FirstLine(cell + 1) <= line) ++cell;
    lines.push_back({.start = row->LineStart(line), .end = end, .cell = cell});
    lines.back().right = static_cast<float>(row->cells[static_cast<std::size_t>(cell)].right);
  }
  for (std::size_t i = 0; i + 1 < lines.size(); ++i)
    lines[i].end = std::max(lines[i].start, document.SnapBackward(lines[i + 1].start - 1));
  return lines;
}

}  // namespace lumenote
