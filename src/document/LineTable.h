// Where the lines of the laid-out text begin, filled on demand.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "document/Document.h"

namespace lumenote {

/// Breaks text into lines; each backend measures with its own fonts.
class LineBreaker {
 public:
  virtual ~LineBreaker() = default;
  /// Lays out one paragraph, or a piece of one, from `from` (a line's first character) to `to`
  /// (the paragraph's end or a limit inside it), and returns the position where each line after
  /// the first begins. A line takes at least one character; the text behind a limit may still
  /// belong to the piece's last line, so a line begins only where something did not fit.
  virtual std::vector<Position> Break(const Document& document, Position from, Position to) = 0;
  /// Distance, in the breaker's own unit, of `position` from the left edge in the line that begins
  /// at `lineStart`.
  virtual float XOf(const Document& document, Position lineStart, Position position) = 0;
  /// The caret position nearest to `x` in the line `lineStart`..`lineEnd`.
  virtual Position AtX(const Document& document, Position lineStart, Position lineEnd, float x) = 0;
};

/// One line of the layout.
struct Line {
  Position start = 0;
  Position end = 0;    // just behind the last character, a paragraph's or line's break not included
  Position next = -1;  // where the following line begins; -1 behind the last one
  bool operator==(const Line&) const = default;
};

/// The lines from one paragraph's start on, known up to the furthest asked for. Invariant: every
/// start is where a layout of the whole document would begin a line.
class LineRun {
 public:
  LineRun(const Document& document, LineBreaker& breaker);

  /// Forgets everything and begins at a paragraph's start.
  void Restart(Position paragraphStart);
  Position First() const { return starts_.front().at; }
  /// Whether `position` lies in the lines known or in the paragraph of the last one.
  bool Reaches(Position position) const;
  /// Number of the line that holds `position`, counted from the first of the run.
  std::size_t IndexOf(Position position);
  /// Whether there is such a line.
  bool Has(std::size_t line);
  Line At(std::size_t line);
  /// After an edit at `at`, not before the run's first line.
  void Edited(Position at);

 private:
  struct Start {
    Position at = 0;
    ParaId format = 0;  // of its paragraph, as it was laid out
  };

  bool Extend();
  std::size_t LastUpTo(Position position) const;
  bool BehindBlank(Position start) const;
  bool StartsParagraph(Position start) const;

  const Document& document_;
  LineBreaker& breaker_;
  std::vector<Start> starts_;
  Position piece_ = 0;     // how much to lay out next
  bool complete_ = false;  // the last start is the document's last line
};

/// Line starts of a document. A look-up by number lays out what lies before it; a look-up of the
/// lines around a position lays out its paragraph alone; an edit drops what it may have moved. A
/// long paragraph is broken in pieces of at most about `kPiece` characters, shorter ones just
/// behind an edit, each from a line's first character on.
class LineTable {
 public:
  static constexpr Position kPiece = 4000;

  LineTable(const Document& document, LineBreaker& breaker);

  /// Number, from 0, of the line that holds `position`.
  std::int32_t LineOf(Position position);
  /// First position of a line, or -1 when there is no such line.
  Position LineStart(std::int32_t line);
  /// Just behind the last character of the line, its break not included; -1 as above.
  Position LineEnd(std::int32_t line);

  /// The line that holds `position`; costs no more than its paragraph, wherever it lies.
  Line LineAt(Position position);

  /// After an edit of text or formats at `at`: forgets the lines it may have moved.
  void Edited(Position at);
  /// After a change of width or fonts.
  void Reset();

 private:
  const Document& document_;
  LineRun all_;   // from the start of the document, so its numbers are the document's
  LineRun near_;  // around the last position asked for beyond the lines of `all_`
};

}  // namespace lumenote
