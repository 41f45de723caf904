#include "backends/qt/text/Piece.h"

#include <algorithm>

namespace lumenote {

int Piece::ToIndex(Position position) const {
  const int index = position - from;
  if (preeditLength == 0 || index < preeditAt) return index;
  return index == preeditAt ? index + preeditCaret : index + preeditLength;
}

Position Piece::ToPosition(int index) const {
  if (index <= preeditAt) return from + index;
  return from + std::max(preeditAt, index - preeditLength);
}

int Piece::LineOf(Position position) const {
  const int index = ToIndex(position);
  const auto behind =
      std::upper_bound(lines.begin() + 1, lines.end(), index,
                       [](int value, const PieceLine& line) { return value < line.start; });
  return static_cast<int>(behind - lines.begin()) - 1;
}

double Piece::XOf(Position position) const {
  return layout.lineAt(LineOf(position)).cursorToX(ToIndex(position));
}

// Behind the last character of a line that goes on is where the next line begins, so the caret
// would be shown there.
Position Piece::PositionAt(int line, double x) const {
  const PieceLine& box = lines[Index(line)];
  int index = layout.lineAt(line).xToCursor(x, QTextLine::CursorBetweenCharacters);
  const bool goesOn = !closes || Index(line) + 1 < lines.size();
  if (goesOn && index >= box.end && box.end > box.start)
    index = layout.previousCursorPosition(box.end);
  return ToPosition(index);
}

Position Piece::CharacterAt(int line, double x) const {
  const QTextLine text = layout.lineAt(line);
  const double left = text.x() + text.naturalTextRect().left() - text.rect().left();
  if (x < left || x >= left + text.naturalTextWidth()) return -1;
  return ToPosition(text.xToCursor(x, QTextLine::CursorOnCharacter));
}

int Piece::LineAt(double y) const {
  const auto below = std::find_if(lines.begin(), lines.end(), [&](const PieceLine& line) {
    return y < line.top + line.height;
  });
  return static_cast<int>(std::min<std::ptrdiff_t>(below - lines.begin(), std::ssize(lines) - 1));
}

}  // namespace lumenote
