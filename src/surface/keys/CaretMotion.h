// Where the caret keys move the caret.
#pragma once
#include <optional>

#include "surface/editing/EditingCore.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// Vertical moves in a row share one goal: the distance from the left edge at which the first
/// began, so that the caret returns there after shorter lines.
class CaretMotion {
 public:
  CaretMotion(EditingCore& core, LineBreaker& breaker) : core_(core), breaker_(breaker) {}

  /// The new caret position, unchanged at the document's edge; empty if `key` is not a caret key.
  std::optional<Position> Target(const KeyStroke& key);

 private:
  Position LeftOf(bool extend) const;
  Position RightOf(bool extend) const;
  Line LineAt(Position position) const;
  int LinesOf(const KeyStroke& key) const;
  Position Vertically(int lines);

  EditingCore& core_;
  LineBreaker& breaker_;
  std::optional<float> goal_;  // valid while the caret is at `goalCaret_`
  Position goalCaret_ = 0;
};

}  // namespace lumenote
