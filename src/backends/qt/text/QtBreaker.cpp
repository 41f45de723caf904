#include "backends/qt/text/QtBreaker.h"

#include <algorithm>

namespace lumenote {

namespace {
// A line seldom has more characters.
constexpr Position kLineLength = 300;
}  // namespace

std::vector<Position> QtBreaker::Break(const Document& document, Position from, Position to) {
  const auto piece = layouter_.LayOut(document, {.from = from, .to = to});
  std::vector<Position> starts;
  for (std::size_t line = 1; line < piece->lines.size(); ++line)
    starts.push_back(piece->LineStart(static_cast<int>(line)));
  return starts;
}

/// A piece whose first line is the one that begins at `lineStart`.
std::unique_ptr<Piece> QtBreaker::LineFrom(const Document& document, Position lineStart) {
  const Position end = document.ParagraphEnd(document.ParagraphOf(lineStart));
  for (Position length = kLineLength;; length *= 2) {
    const bool complete = length >= end - lineStart;
    const Position to = complete ? end : document.Before(lineStart + length);
    if (auto piece = layouter_.LayOut(document, {lineStart, to, complete})) return piece;
  }
}

float QtBreaker::XOf(const Document& document, Position lineStart, Position position) {
  const auto piece = LineFrom(document, lineStart);
  const int index = std::min(piece->ToIndex(position), piece->lines.front().end);
  return static_cast<float>(piece->layout.lineAt(0).cursorToX(index));
}

Position QtBreaker::AtX(const Document& document, Position lineStart, Position lineEnd, float x) {
  const auto piece = LineFrom(document, lineStart);
  return std::clamp(piece->PositionAt(0, x), lineStart, lineEnd);
}

}  // namespace lumenote
