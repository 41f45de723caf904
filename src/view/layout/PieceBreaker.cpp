#include "view/layout/PieceBreaker.h"

#include <algorithm>
#include <utility>

#include "document/tables/TableRow.h"

namespace lumenote {

namespace {
// Lines rarely have more characters.
constexpr Position kLineLength = 300;

bool HasLineBreak(const Document& document, Position from, Position to) {
  bool found = false;
  document.ForEachRun(from, to, [&](Position, TextView text, CharId) {
    found = found || text.Find('\v', 0) < text.Size();
  });
  return found;
}

}  // namespace

std::unique_ptr<Piece> PieceBreaker::LayOut(const Document& document, const PieceSpan& span) {
  Composition composed = layouter_.Composed();
  layouter_.Composed({});
  auto piece = layouter_.LayOut(document, span);
  layouter_.Composed(std::move(composed));
  return piece;
}

// In a row, only line breaks begin lines within a paragraph.
std::vector<Position> PieceBreaker::Break(const Document& document, Position from, Position to) {
  const Position end = document.ParagraphEnd(document.ParagraphOf(from));
  const bool row = RowAround(document, from).has_value();
  std::vector<Position> starts;
  if (row && !HasLineBreak(document, from, to)) return starts;
  const auto piece = LayOut(document, {.from = from, .to = to});
  for (int line = 1; line < std::ssize(piece->lines); ++line)
    if (const Position start = piece->LineStart(line);
        start > from && start <= end && piece->BeginsLine(document, line))
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

std::optional<CellLine> PieceBreaker::FindCellLine(const Document& document, Position position,
                                                   CellStep step, float x) {
  const auto row = RowAround(document, position);
  if (!row) return std::nullopt;
  const auto piece = LayOut(document, {.from = row->start, .to = row->end});
  int line = piece->LineOf(position);
  if (step == CellStep::Above || step == CellStep::Below)
    line = piece->LineBeside(line, step == CellStep::Below, x);
  if (step == CellStep::Topmost || step == CellStep::Lowest)
    line = piece->LineAtEdge(step == CellStep::Topmost, x);
  if (line < 0) return std::nullopt;
  const bool last = line + 1 == std::ssize(piece->lines);
  const Position start = piece->LineStart(line);
  const Position end = last ? row->end : document.SnapBackward(piece->LineStart(line + 1) - 1);
  return CellLine{start, std::max(start, end), {row->start, row->end}};
}

}  // namespace lumenote
