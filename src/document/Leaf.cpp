#include "document/Leaf.h"

#include <algorithm>
#include <cstdint>

namespace lumenote {

Position CountBreaks(std::u16string_view text) {
  // Counts narrow enough to be added many at once, over pieces that cannot overflow them.
  constexpr std::size_t kPiece = 0x8000;
  Position count = 0;
  for (; !text.empty(); text = text.substr(std::min(kPiece, text.size()))) {
    std::uint16_t breaks = 0;
    for (char16_t c : text.substr(0, kPiece)) breaks += c == u'\r';
    count += breaks;
  }
  return count;
}

Position Leaf::BreaksBetween(Position from, Position to) const {
  return marks.empty() ? 0 : CountBreaks(Units(from, to));
}

Position Leaf::BreakAt(Position index) const {
  const std::u16string_view units = text.View();
  std::size_t at = units.find(u'\r');
  for (; index > 0; --index) at = units.find(u'\r', at + 2);
  return static_cast<Position>(at);
}

void Leaf::Replace(Position at, Position removed, const Leaf& piece) {
  const Position gone = BreaksBetween(at, at + removed);
  if (gone > 0 || !piece.marks.empty()) {
    const auto first = marks.begin() + BreaksBetween(0, at);
    marks.insert(marks.erase(first, first + gone), piece.marks.begin(), piece.marks.end());
  }
  runs.Replace(at, removed, piece.runs);
  text.Replace(at, removed, piece.text.View());
}

Leaf Leaf::Part(Position from, Position to) const {
  Leaf part{LeafText(Units(from, to)), runs.Part(from, to), {}};
  if (const Position breaks = BreaksBetween(from, to); breaks > 0) {
    const auto first = marks.begin() + BreaksBetween(0, from);
    part.marks.assign(first, first + breaks);
  }
  return part;
}

}  // namespace lumenote
