// A piece laid out by Qt.
#pragma once
#include <QTextLayout>
#include <vector>

#include "view/layout/Strokes.h"

namespace lumenote {

class QtPiece final : public Piece {
 public:
  QTextLayout layout;
  std::vector<Decoration> decorations;

  double CaretX(int line, int index) const override { return layout.lineAt(line).cursorToX(index); }

 protected:
  int CaretAt(int line, double x) const override;
  int UnitAt(int line, double x) const override;
  int CaretBefore(int index) const override { return layout.previousCursorPosition(index); }
};

}  // namespace lumenote
