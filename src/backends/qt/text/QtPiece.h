// A piece laid out by Qt.
#pragma once
#include <QColor>
#include <QTextLayout>
#include <vector>

#include "view/layout/Piece.h"

namespace lumenote {

/// Something drawn over or under characters `start`..`end` of the layout's text.
struct Decoration {
  int start = 0;
  int end = 0;
  Underline underline = Underline::None;
  int strikes = 0;
  bool object = false;  // a placeholder for an object that cannot be shown
  double ascent = 0;    // of the font, pixels
  double descent = 0;
  double raise = 0;  // of its baseline above the line's
  QColor colour;     // invalid: the text's automatic colour
};

class QtPiece final : public Piece {
 public:
  QTextLayout layout;
  std::vector<Decoration> decorations;

  double CaretX(int line, int index) const override { return layout.lineAt(line).cursorToX(index); }

 protected:
  int CaretAt(int line, double x) const override {
    return layout.lineAt(line).xToCursor(x, QTextLine::CursorBetweenCharacters);
  }
  int UnitAt(int line, double x) const override;
  int CaretBefore(int index) const override { return layout.previousCursorPosition(index); }
};

}  // namespace lumenote
