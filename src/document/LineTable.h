// Where the lines of the laid-out text begin; computed on demand.
#pragma once
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// A line of a cell in a table row.
struct CellLine {
  Position start = 0;
  Position end = 0;  // the last caret position in it
  Selection row;     // up to the break that ends the row
};

/// Where a line of a row is looked for.
enum class CellStep {
  Here,     // the one that holds a position
  Above,    // the one above that, at some x
  Below,    // likewise
  Topmost,  // of the row, at some x
  Lowest,   // likewise
};

/// Breaks text into lines; each backend measures with its own fonts.
class LineBreaker {
 public:
  virtual ~LineBreaker() = default;
  /// Lays out a paragraph, or a piece of one, from `from` (a line start) to `to` (the paragraph's
  /// end or a limit inside it), and returns the start of each line after the first. A line has at
  /// least one character. Text beyond a limit may still belong to the piece's last line, so a line
  /// starts only where something did not fit.
  virtual std::vector<Position> Break(const Document& document, Position from, Position to) = 0;
  /// The x-coordinate of `position` in the line that starts at `lineStart`, in the breaker's own
  /// unit from the left edge.
  virtual float XOf(const Document& document, Position lineStart, Position position) = 0;
  /// The caret position nearest to `x` in the line `lineStart`..`lineEnd`.
  virtual Position AtX(const Document& document, Position lineStart, Position lineEnd, float x) = 0;
  /// A line of the row that holds `position`; empty if none does, or if the line would be outside.
  /// `XOf` and `AtX` take its start, too.
  virtual std::optional<CellLine> FindCellLine(const Document&, Position, CellStep, float) {
    return std::nullopt;
  }
};

/// One line of the layout.
struct Line {
  Position start = 0;
  Position end = 0;    // after the last character, excluding the paragraph's or line's break
  Position next = -1;  // start of the next line; -1 for the last one
  bool operator==(const Line&) const = default;
};

/// The line starts from one paragraph on, as far as they were asked for. Invariants: each is a line
/// start of the whole document's layout; they ascend, the first starts a paragraph, and each has
/// its paragraph's format.
class LineStarts {
 public:
  static constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

  LineStarts(const Document& document, LineBreaker& breaker);

  /// Discards everything and restarts at a paragraph's start.
  void Restart(Position paragraphStart);
  Position First() const { return starts_.front().at; }
  /// Whether `position` lies in the known lines or in the last one's paragraph.
  bool Covers(Position position) const;
  /// Index of the line that holds `position`, relative to the first line here; `limit` as soon as
  /// it is known to be no less, as a paragraph that is not laid out has one line at least.
  std::size_t IndexOf(Position position, std::size_t limit = kNoLimit);
  /// Whether line `line` exists; lays out up to it.
  bool Has(std::size_t line);
  Line At(std::size_t line);
  /// Invalidates what an edit at `at`, not before the first line, may have moved.
  void Edited(Position at);

 private:
  struct Start {
    Position at = 0;
    ParaId format = 0;  // the paragraph's format when it was laid out
  };

  bool Extend();
  std::size_t LeastIndexIn(Position paragraph) const;
  std::size_t LastUpTo(Position position) const;
  bool FollowsSpace(Position start) const;
  bool StartsParagraph(Position start) const;
  bool IsSound(std::size_t from) const;

  const Document& document_;
  LineBreaker& breaker_;
  std::vector<Start> starts_;
  Position piece_ = 0;     // how much to lay out next
  bool complete_ = false;  // the last start is that of the document's last line
};

/// A document's line starts. A look-up by number lays out everything before it; a look-up around a
/// position lays out only its paragraph; an edit discards what it may have moved. A long paragraph
/// is broken in pieces of at most about `kPiece` characters (shorter ones right after an edit),
/// each starting at a line start.
class LineTable {
 public:
  static constexpr Position kPiece = 4000;
  static constexpr std::int32_t kEveryLine = std::numeric_limits<std::int32_t>::max();

  LineTable(const Document& document, LineBreaker& breaker);

  /// Number, from 0, of the line that holds `position`, if less than `limit`, else `limit`.
  std::int32_t LineOf(Position position, std::int32_t limit = kEveryLine);
  /// First position of a line, or -1 if there is no such line.
  Position LineStart(std::int32_t line);
  /// The position after the line's last character, excluding its break; -1 as above.
  Position LineEnd(std::int32_t line);

  /// The line that holds `position`; never costs more than its paragraph.
  Line LineAt(Position position);

  /// Invalidates the lines that an edit of text or formats at `at` may have moved.
  void Edited(Position at);
  /// Discards everything, after a change of width or fonts.
  void Reset();

 private:
  const Document& document_;
  LineStarts all_;   // from the start of the document, so its indices are line numbers
  LineStarts near_;  // around the last position looked up beyond `all_`
};

}  // namespace lumenote
