// A laid-out paragraph, or some lines of a long one.
#pragma once
#include <cstddef>
#include <vector>

#include "document/Document.h"
#include "view/layout/Pixels.h"

namespace lumenote {

/// One line of a piece; heights and the baseline count from the piece's top, in pixels.
struct PieceLine {
  int start = 0;  // in the layout's text
  int end = 0;    // where the next line starts
  double top = 0;
  double height = 0;
  double baseline = 0;
  std::size_t look = 0;  // lines of different looks, at the same width, differ in it
};

/// A run of characters of one format in the layout's text, up to where the next one starts.
struct PieceRun {
  int start = 0;
  CharId format = 0;
};

/// A box that stands in a line for one character of the layout's text: a picture, a note's mark.
/// It stands on the baseline.
struct InlineBox {
  int index = 0;
  PixelSize size;
};

/// A cell of a table row: lines `firstLine`.. up to the next cell's, beside those of other cells.
struct PieceCell {
  int firstLine = 0;
  double left = 0;  // from the text's left edge, pixels
  double right = 0;
};

/// What a layouter makes. The layout's text has the units `from`..`to` of the document, one for
/// one, and the text being composed in between. Invariants: begins at a line's first character and
/// ends at its paragraph's end or where another line begins; never empty of lines; of a row of
/// cells, whatever span was asked for, it is the whole paragraph. Nothing changes in it but its
/// position in the document.
class Piece {
 public:
  virtual ~Piece() = default;
  Piece() = default;
  Piece(const Piece&) = delete;
  Piece& operator=(const Piece&) = delete;

  Position from = 0;
  Position to = 0;
  bool opens = false;     // begins its paragraph
  bool closes = false;    // ends it
  bool overlaps = false;  // text of a line may reach into the lines beside it
  ParaId format = 0;

  std::vector<PieceLine> lines;  // in the order of the text
  std::vector<PieceRun> runs;
  std::vector<InlineBox> boxes;  // by rising index
  std::vector<PieceCell> cells;  // from left to right; none but in a row of cells
  double height = 0;
  int composedAt = 0;  // in the layout's text
  int composedLength = 0;
  int composedCaret = 0;
  double bulletX = -1;  // where a bullet stands; negative without one

  bool Holds(Position position) const {
    return position >= from && (position < to || (closes && position == to));
  }
  /// Number of the line that holds `position`.
  int LineOf(Position position) const;
  Position LineStart(int line) const { return ToPosition(lines[Index(line)].start); }
  /// Distance from the text's left edge.
  double XOf(Position position) const;
  /// The nearest caret position that is shown in the line.
  Position PositionAt(int line, double x) const;
  /// The character that is shown there; -1 beside the line's text.
  Position CharacterAt(int line, double x) const;
  /// The line at a point, the nearest one of the cell there outside the piece.
  int LineAt(double y, double x = 0) const;
  /// Calls `visit(const PieceLine&)` for what stands one below the other: the lines, or a row of
  /// cells as a whole.
  template <class Visit>
  void ForEachBand(Visit visit) const {
    if (!cells.empty()) return visit(Row());
    for (const PieceLine& line : lines) visit(line);
  }

  int ToIndex(Position position) const;
  Position ToPosition(int index) const;

  /// Distance of the caret before unit `index` from the text's left edge, in that line.
  virtual double CaretX(int line, int index) const = 0;

 protected:
  /// The caret nearest to `x`, as the unit it stands before; `end` of the line at the most.
  virtual int CaretAt(int line, double x) const = 0;
  /// The unit shown at `x`; -1 beside the line's text.
  virtual int UnitAt(int line, double x) const = 0;
  /// The caret before the one at `index`.
  virtual int CaretBefore(int index) const = 0;

 private:
  static std::size_t Index(int line) { return static_cast<std::size_t>(line); }
  PieceLine Row() const;
};

}  // namespace lumenote
