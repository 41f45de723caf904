#include "view/acts/TextWalk.h"

namespace lumenote {

// The last line and the last paragraph may be empty, other units not.
bool TextWalk::HasBehind(Selection here, TextUnit unit) const {
  const Selection last = text_.At(text_.Length(), unit);
  if (here.end < last.end) return true;
  return (unit == TextUnit::Line || unit == TextUnit::Paragraph) && here.start < last.start;
}

TextWalk::Step TextWalk::Moved(Selection range, TextUnit unit, int count) const {
  if (range.Length() == 0) return EdgeMoved(range.start, unit, count);
  Step step{range};
  if (count != 0) step.range = text_.At(range.start, unit);
  for (; step.count < count && HasBehind(step.range, unit); ++step.count)
    step.range = text_.At(step.range.end, unit);
  for (; step.count > count && step.range.start > 0; --step.count)
    step.range = text_.At(step.range.start - 1, unit);
  return step;
}

TextWalk::Step TextWalk::EdgeMoved(Position place, TextUnit unit, int count) const {
  int moved = 0;
  for (; moved < count && place < text_.Length(); ++moved) place = text_.At(place, unit).end;
  for (; moved > count && place > 0; --moved) place = text_.At(place - 1, unit).start;
  return {{place, place}, moved};
}

}  // namespace lumenote
