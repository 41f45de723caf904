#include "view/layout/PieceBreaker.h"

#include <algorithm>
#include <utility>

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
  const int line = piece->LineOf(piece->cells.empty() ? lineStart : position);
  const int end = piece->lines[static_cast<std::size_t>(line)].end;
  return static_cast<float>(piece->CaretX(line, std::min(piece->ToIndex(position), end)));
}

Position PieceBreaker::AtX(const Document& document, Position lineStart, Position lineEnd,
                           float x) {
  const auto piece = LineFrom(document, lineStart);
  const int line = piece->cells.empty() ? piece->LineOf(lineStart) : piece->LineAt(0, x);
  return std::clamp(piece->PositionAt(line, x), lineStart, lineEnd);
}

}  // namespace lumenote
