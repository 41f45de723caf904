#include "backends/qt/text/QtPiece.h"

#include <algorithm>
#include <cmath>

namespace lumenote {

// Where directions meet, Qt's own answer is a caret that it shows elsewhere.
int QtPiece::CaretAt(int line, double x) const {
  const QTextLine text = layout.lineAt(line);
  const int end = text.textStart() + text.textLength();
  int nearest = end;
  double least = std::abs(text.cursorToX(end) - x);
  for (int index = end - 1; index >= text.textStart(); --index) {
    const double distance = std::abs(text.cursorToX(index) - x);
    if (distance > least || !layout.isValidCursorPosition(index)) continue;
    nearest = index;
    least = distance;
  }
  return nearest;
}

int QtPiece::UnitAt(int line, double x) const {
  const QTextLine text = layout.lineAt(line);
  const double left = text.x() + text.naturalTextRect().left() - text.rect().left();
  if (x < left || x >= left + text.naturalTextWidth()) return -1;
  const int last = text.textStart() + text.textLength() - 1;
  return std::min(text.xToCursor(x, QTextLine::CursorOnCharacter), last);
}

}  // namespace lumenote
