// Where the caret keys move the caret.
#pragma once
#include <optional>
#include <vector>

#include "surface/editing/EditingCore.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// Vertical moves one after the other share one goal: the distance from the left edge at which the
/// first began, so that the caret returns there after shorter lines. In a table the caret moves
/// along the lines of its cell, and from there to the cell above or below at the goal.
class CaretMotion {
 public:
  CaretMotion(EditingCore& core, LineBreaker& breaker) : core_(core), breaker_(breaker) {}

  /// The new caret position, unchanged at the document's edge; empty if `key` is not a caret key.
  std::optional<Position> Target(const KeyStroke& key);

 private:
  /// A line that the caret moves along: in a table, one of a cell.
  struct CaretLine {
    Position start = 0;
    Position end = 0;     // the last caret position in it
    Position above = -1;  // in the line or row above; -1: it is the first
    Position below = -1;
    bool inCell = false;
    bool operator==(const CaretLine&) const = default;
  };

  Position LeftOf(bool extend) const;
  Position RightOf(bool extend) const;
  Line ShownLine(Position position) const;
  CaretLine LineAt(Position position) const;
  CaretLine LineOfCell(const CellLine& line) const;
  /// The next line upwards or downwards; the same one at the document's edge.
  CaretLine Beside(const CaretLine& line, bool below) const;
  int LinesOf(const KeyStroke& key) const;
  Position Vertically(int lines);

  EditingCore& core_;
  LineBreaker& breaker_;
  std::optional<float> goal_;  // valid while the caret is at `goalCaret_`
  Position goalCaret_ = 0;
};

}  // namespace lumenote
