#include "view/pane/RangeBoxes.h"

#include <algorithm>

namespace lumenote {

namespace {
constexpr double kBreakWidth = 5;
}  // namespace

std::vector<RangeBox> BoxesOf(const TextPane& pane, const ShownPiece& shown, Selection range) {
  const Piece& piece = *shown.piece;
  const int start = piece.ToIndex(std::max(range.start, piece.from));
  const int end = piece.ToIndex(std::min(range.end, piece.to));
  std::vector<RangeBox> boxes;
  for (int i = 0; i < std::ssize(piece.lines); ++i) {
    const PieceLine& line = piece.lines[static_cast<std::size_t>(i)];
    const int from = std::max(start, line.start);
    const int to = std::min(end, line.end);
    if (from >= to) continue;
    const auto [left, right] = std::minmax({piece.CaretX(i, from), piece.CaretX(i, to)});
    const PixelRect box{left, line.top, right, line.top + line.height};
    boxes.push_back({i, from, to, box.MovedBy(pane.TextLeft(), shown.y)});
  }
  return boxes;
}

std::optional<PixelRect> BreakBoxOf(const TextPane& pane, const ShownPiece& shown,
                                    Selection range) {
  const Piece& piece = *shown.piece;
  if (!piece.closes || range.start > piece.to || range.end <= piece.to) return std::nullopt;
  const PieceLine& line = piece.lines.back();
  const double x = piece.XOf(piece.to);
  const PixelRect box{x, line.top, x + kBreakWidth, line.top + line.height};
  return box.MovedBy(pane.TextLeft(), shown.y);
}

}  // namespace lumenote
