// A laid-out paragraph, or some lines of a long one.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "document/Document.h"
#include "document/pictures/PictureFrame.h"
#include "view/layout/Pixels.h"

namespace lumenote {

/// One line of a piece; heights and baseline are in pixels from the piece's top.
struct PieceLine {
  int start = 0;   // in the layout's text
  int end = 0;     // where the next line starts
  int ending = 0;  // units at its end that end a paragraph or cell in a row, and show nothing
  double top = 0;
  double height = 0;
  double baseline = 0;
  std::uint64_t look = 0;  // lines that look different at the same width differ in this value
};

/// A format run in the layout's text, up to the start of the next run.
struct PieceRun {
  int start = 0;
  CharId format = 0;
};

/// A box in a line for one character of the layout's text, such as a picture or a note's mark; it
/// stands on the baseline.
struct InlineBox {
  int index = 0;
  ItemId item = 0;  // what it shows
  PixelSize size;
  int number = 0;  // of a footnote, shown instead; 0 for other boxes
  PictureFrame frame{};
};

/// A cell of a table row: its lines stand beside those of the row's other cells. They include those
/// of tables in the cell, whose rows have numbers of their own.
struct PieceCell {
  int firstLine = 0;
  int endLine = 0;  // behind its last line
  double left = 0;  // pixels from the text's left edge
  double right = 0;
  double top = 0;  // pixels from the piece's top; those of the row
  double bottom = 0;
  int row = 0;
  int parent = -1;  // the cell around the row; negative: none

  bool Has(int line) const { return line >= firstLine && line < endLine; }
};

/// The borders and shading of a paragraph in a cell; in pixels from the text's left edge and the
/// piece's top.
struct PieceFrame {
  PixelRect area;  // with the lines
  WordsId words = 0;
  bool opens = true;     // not in the box of the paragraph above
  bool closes = true;    // nor of the one below
  bool follows = false;  // another paragraph in the same box
};

/// The bullet of a paragraph.
struct PieceBullet {
  int line = 0;
  double x = 0;  // distance from the text's left edge
};

/// The result of a layouter. The layout's text has the units `from`..`to` of the document one to
/// one, plus any composed text. Invariants: starts at a line start and ends at the paragraph's end
/// or another line start; has at least one line; of a row of cells it always has all paragraphs.
/// Immutable except for its position in the document.
class Piece {
 public:
  virtual ~Piece() = default;
  Piece() = default;
  Piece(const Piece&) = delete;
  Piece& operator=(const Piece&) = delete;

  Position from = 0;
  Position to = 0;
  bool opens = false;     // at the start of its paragraph
  bool closes = false;    // at the end of its paragraph
  bool overlaps = false;  // text may extend into neighbouring lines
  ParaId format = 0;

  std::vector<PieceLine> lines;  // in text order
  std::vector<PieceRun> runs;
  std::vector<InlineBox> boxes;    // by ascending index
  std::vector<PieceCell> cells;    // in text order, each before those in it; only in a row of cells
  std::vector<ItemId> rows;        // what is kept at the ends of the rows, by number
  std::vector<PieceFrame> frames;  // in text order; only in a row of cells
  std::vector<PieceBullet> bullets;  // by ascending line
  double height = 0;
  int composedAt = 0;  // in the layout's text
  int composedLength = 0;
  int composedCaret = 0;

  bool Holds(Position position) const {
    return position >= from && (position < to || (closes && position == to));
  }
  /// Index of the line that holds `position`.
  int LineOf(Position position) const { return LineOfIndex(ToIndex(position)); }
  /// Index of the line that holds a unit of the layout's text.
  int LineOfIndex(int index) const;
  Position LineStart(int line) const { return ToPosition(lines[Index(line)].start); }
  /// Whether what callers know as a line begins there: cells of a row stand beside each other in
  /// one, up to its line breaks and paragraphs.
  bool BeginsLine(const Document& document, int line) const;
  /// Distance from the text's left edge.
  double XOf(Position position) const;
  /// Whether the unit belongs to composed text.
  bool IsComposed(int index) const {
    return index >= composedAt && index < composedAt + composedLength;
  }
  /// The box at a unit of the layout's text; null if it is none.
  const InlineBox* BoxAt(int index) const;
  /// Where it is, from the text's left edge and the piece's top.
  PixelRect PlaceOf(const InlineBox& box) const;
  /// The nearest caret position shown in the line.
  Position PositionAt(int line, double x) const;
  /// The character shown there; -1 if `x` is outside the line's text.
  Position CharacterAt(int line, double x) const;
  /// Number of the innermost cell that has a line; the piece has cells.
  int CellOf(int line) const;
  /// The line below (above) another one in a row of cells, in the cell nearest to `x` where there
  /// are several; -1 if that is outside the row.
  int LineBeside(int line, bool below, double x) const;
  /// The first (last) line of the row's cell nearest to `x`.
  int LineAtEdge(bool first, double x) const;
  /// The lines that stand below each other there: all, or those of the cell nearest to `x`, with
  /// those of tables in it.
  std::span<const PieceLine> LinesAt(double x) const;
  /// The line at a point or, outside the piece, the nearest line of the cell there.
  int LineAt(double y, double x = 0) const;
  /// Calls `visit(const PieceLine&)` for each vertical band: a line, or a whole row of cells.
  template <class Visit>
  void ForEachBand(Visit visit) const {
    if (!cells.empty()) return visit(Row());
    for (const PieceLine& line : lines) visit(line);
  }

  int ToIndex(Position position) const;
  Position ToPosition(int index) const;

  /// Whether the invariants hold, for assertions.
  bool IsSound(const Document& document) const;

  /// Distance from the text's left edge to the caret before unit `index` of that line.
  virtual double CaretX(int line, int index) const = 0;

 protected:
  /// The unit whose caret position is nearest to `x`, at most the line's `end`.
  virtual int CaretAt(int line, double x) const = 0;
  /// The unit shown at `x`; -1 outside the line's text.
  virtual int UnitAt(int line, double x) const = 0;
  /// The caret position before `index`.
  virtual int CaretBefore(int index) const = 0;

 private:
  static std::size_t Index(int line) { return static_cast<std::size_t>(line); }
  PieceLine Row() const;
  int CellNear(int row, double x) const;
  int EnterRow(int row, bool below, double x) const;
  int CellAt(double y, double x) const;
  bool HasOrderedParts() const;
};

}  // namespace lumenote
