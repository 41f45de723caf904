#include "backends/headless/FixedBreaker.h"

#include <cmath>
#include <cstddef>

#include "base/Strings.h"

namespace lumenote {

namespace {

constexpr float kTabStep = 720;
constexpr char16_t kLineBreak = u'\v';

struct Cell {
  char16_t character;
  float advance;  // 0 for the second half of a surrogate pair
};

std::vector<Cell> Cells(const Document& document, Position from, Position to) {
  std::vector<Cell> cells;
  cells.reserve(static_cast<std::size_t>(to - from));
  const auto append = [&](Position, TextView text, CharId format) {
    const float half = static_cast<float>(document.Formats().characters[format].size) * 5;
    for (const char16_t c : text.String()) cells.push_back({c, IsLowSurrogate(c) ? 0 : half});
  };
  document.ForEachRun(from, to, append);
  return cells;
}

float Behind(const Cell& cell, float x) {
  if (cell.character != u'\t') return x + cell.advance;
  return (std::floor(x / kTabStep) + 1) * kTabStep;
}

bool AllowsBreakBehind(char16_t c) {
  return std::u16string_view(u" \t-\u2010\u2013\u2014").find(c) != std::u16string_view::npos;
}

/// Where the lines of a paragraph begin and end; sums are taken in floats, which no indent
/// overflows.
struct Edges {
  float first, following, right;
  Edges(const Document& document, Position at, float width) {
    const ParaFormat& format = document.Formats().paragraphs[document.ParaFormatAt(at)];
    first = static_cast<float>(format.firstIndent);
    following = first + static_cast<float>(format.hangingIndent);
    right = width - static_cast<float>(format.rightIndent);
  }
  float Left(const Document& document, Position lineStart) const {
    const Position paragraph = document.ParagraphOf(lineStart);
    return document.ParagraphStart(paragraph) == lineStart ? first : following;
  }
};

}  // namespace

std::vector<Position> FixedBreaker::Break(const Document& document, Position from, Position to) {
  const std::vector<Cell> cells = Cells(document, from, to);
  const Edges edges(document, from, width_);
  std::vector<Position> starts;
  std::size_t lineStart = 0;
  std::size_t breakAt = 0;  // behind the last character of this line that allows a break
  float x = edges.Left(document, from);
  const auto begin = [&](std::size_t at) {
    starts.push_back(from + static_cast<Position>(at));
    lineStart = breakAt = at;
    x = edges.following;
    return at;
  };
  for (std::size_t i = 0; i < cells.size();) {
    const Cell& cell = cells[i];
    const float behind = Behind(cell, x);
    const bool mayStay = cell.character == u' ' || cell.advance == 0 || i == lineStart;
    if (cell.character == kLineBreak) {
      i = begin(i + 1);
    } else if (behind > edges.right && !mayStay) {
      i = begin(breakAt > lineStart ? breakAt : i);
    } else {
      x = behind;
      ++i;
      if (AllowsBreakBehind(cell.character)) breakAt = i;
    }
  }
  return starts;
}

float FixedBreaker::XOf(const Document& document, Position lineStart, Position position) {
  float x = Edges(document, lineStart, width_).Left(document, lineStart);
  for (const Cell& cell : Cells(document, lineStart, position)) x = Behind(cell, x);
  return x;
}

Position FixedBreaker::AtX(const Document& document, Position lineStart, Position lineEnd,
                           float x) {
  float left = Edges(document, lineStart, width_).Left(document, lineStart);
  Position position = lineStart;
  for (const Cell& cell : Cells(document, lineStart, lineEnd)) {
    const float right = Behind(cell, left);
    if (cell.advance > 0 && x < (left + right) / 2) return position;
    left = right;
    ++position;
  }
  return lineEnd;
}

}  // namespace lumenote
