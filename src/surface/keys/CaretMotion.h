// Where the caret keys lead.
#pragma once
#include <optional>

#include "surface/editing/EditingCore.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// Keeps, over a series of moves up and down, the distance from the left edge that it began with,
/// so that the caret comes back to it behind shorter lines.
class CaretMotion {
 public:
  CaretMotion(EditingCore& core, LineBreaker& breaker) : core_(core), breaker_(breaker) {}

  /// The new caret position, the old one at the document's edge; empty when `key` is no caret key.
  std::optional<Position> Target(const KeyStroke& key);

 private:
  Position LeftOf(bool extend) const;
  Position RightOf(bool extend) const;
  Line LineAt(Position position) const;
  int LinesOf(const KeyStroke& key) const;
  Position Vertically(int lines);

  EditingCore& core_;
  LineBreaker& breaker_;
  std::optional<float> goal_;  // holds while the caret stands at `goalCaret_`
  Position goalCaret_ = 0;
};

}  // namespace lumenote
