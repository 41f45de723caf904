#include "backends/win32/text/UniscribePiece.h"

#include <algorithm>
#include <cmath>

namespace lumenote {

int UniscribePiece::StopAt(int index, int least) const {
  while (index > least && !units[Index(index)].stop) --index;
  return index;
}

double UniscribePiece::CaretX(int line, int index) const {
  const PieceLine& box = lines[Index(line)];
  if (box.start == box.end) return lefts[Index(line)];
  if (index >= box.end) return units[Index(StopAt(box.end - 1, box.start))].behind;
  return units[Index(StopAt(index, box.start))].before;
}

int UniscribePiece::CaretAt(int line, double x) const {
  const PieceLine& box = lines[Index(line)];
  int nearest = box.end;
  double least = std::abs(CaretX(line, box.end) - x);
  for (int i = box.end - 1; i >= box.start; --i) {
    if (!units[Index(i)].stop) continue;
    const double distance = std::abs(units[Index(i)].before - x);
    if (distance > least) continue;
    nearest = i;
    least = distance;
  }
  return nearest;
}

int UniscribePiece::UnitAt(int line, double x) const {
  const PieceLine& box = lines[Index(line)];
  for (int i = box.start; i < box.end; ++i) {
    const auto [left, right] = std::minmax(units[Index(i)].before, units[Index(i)].behind);
    if (units[Index(i)].stop && x >= left && x < right) return i;
  }
  return -1;
}

}  // namespace lumenote
