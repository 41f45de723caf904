// Walks through a text from unit to unit, as screen readers do.
#pragma once
#include "view/acts/AccessibleText.h"

namespace lumenote {

class TextWalk {
 public:
  explicit TextWalk(const AccessibleText& text) : text_(text) {}

  /// A range that has moved, and by how many units; backwards if negative.
  struct Step {
    Selection range;
    int count = 0;
  };
  /// From the unit where a range begins to the `count`th one behind it, or as far as the text goes;
  /// a caret stays one.
  Step Moved(Selection range, TextUnit unit, int count) const;
  /// From a place to the `count`th edge of units behind it; the range is that caret.
  Step EdgeMoved(Position place, TextUnit unit, int count) const;

 private:
  bool HasBehind(Selection here, TextUnit unit) const;

  const AccessibleText& text_;
};

}  // namespace lumenote
