#include "backends/qt/text/QtPiece.h"

namespace lumenote {

int QtPiece::UnitAt(int line, double x) const {
  const QTextLine text = layout.lineAt(line);
  const double left = text.x() + text.naturalTextRect().left() - text.rect().left();
  if (x < left || x >= left + text.naturalTextWidth()) return -1;
  return text.xToCursor(x, QTextLine::CursorOnCharacter);
}

}  // namespace lumenote
