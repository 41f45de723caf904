// A piece laid out with Uniscribe.
#pragma once
#include <string>
#include <vector>

#include "backends/win32/text/Shaper.h"
#include "view/layout/Strokes.h"

namespace lumenote {

/// Units of one run that stand in one line, from `x` to the right.
struct LinePart {
  std::size_t run = 0;
  int start = 0;
  int end = 0;
  int x = 0;
  int width = 0;
};

/// Distances are pixels from the text's left edge.
class UniscribePiece final : public Piece {
 public:
  /// The carets of a unit; those inside a cluster are never shown.
  struct Unit {
    int before = 0;
    int behind = 0;
    bool stop = false;
  };

  std::u16string text;
  std::vector<GlyphRun> glyphs;
  std::vector<Decoration> decorations;
  std::vector<Unit> units;
  std::vector<int> lefts;                    // of the lines; the caret of an empty one
  std::vector<std::vector<LinePart>> parts;  // of each line, from left to right

  double CaretX(int line, int index) const override;
  /// The nearest caret at or before `index`, at least `least`.
  int StopAt(int index, int least) const;

 protected:
  int CaretAt(int line, double x) const override;
  int UnitAt(int line, double x) const override;
  int CaretBefore(int index) const override { return StopAt(index - 1, 0); }

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }
};

}  // namespace lumenote
