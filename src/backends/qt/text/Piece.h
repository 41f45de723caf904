// A laid-out paragraph, or some lines of a long one.
#pragma once
#include <QColor>
#include <QRectF>
#include <QTextLayout>
#include <cstddef>
#include <string>
#include <vector>

#include "document/Document.h"

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

/// What is drawn over or under characters `start`..`end` of the layout's text besides the text.
struct Decoration {
  int start = 0;
  int end = 0;
  Underline underline = Underline::None;
  int strikes = 0;
  bool object = false;  // a placeholder for what cannot be shown
  double ascent = 0;    // of the font, pixels
  double descent = 0;
  double raise = 0;  // of its baseline above the line's
  QColor colour;     // invalid for the text's automatic one
};

/// Text being composed by an input method, shown at a position of the document.
struct Preedit {
  Position at = -1;
  QString text;
  QList<QTextLayout::FormatRange> formats;  // from the start of `text`
  int caret = 0;
  bool operator==(const Preedit&) const = default;
};

/// Invariants: begins at a line's first character and ends at its paragraph's end or where another
/// line begins; never empty of lines. Nothing changes in it but its position in the document.
class Piece {
 public:
  Position from = 0;
  Position to = 0;
  bool opens = false;   // begins its paragraph
  bool closes = false;  // ends it
  ParaId format = 0;

  QTextLayout layout;
  std::vector<PieceLine> lines;
  std::vector<PieceRun> runs;
  std::vector<Decoration> decorations;
  double height = 0;
  int preeditAt = 0;  // in the layout's text
  int preeditLength = 0;
  int preeditCaret = 0;
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
  /// The line at a height, the first or last one outside the piece.
  int LineAt(double y) const;

  int ToIndex(Position position) const;
  Position ToPosition(int index) const;

 private:
  static std::size_t Index(int line) { return static_cast<std::size_t>(line); }
};

}  // namespace lumenote
