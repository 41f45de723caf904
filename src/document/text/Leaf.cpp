#include "document/text/Leaf.h"

#include <algorithm>
#include <cassert>
#include <string_view>
#include <type_traits>

namespace lumenote {
namespace {

/// Counts in units of the text's own width, for vectorisation, over blocks too short to overflow
/// them.
template <class Unit>
Position CountBreaks(std::basic_string_view<Unit> text) {
  constexpr std::size_t kPiece = sizeof(Unit) == 1 ? 0x80 : 0x8000;
  Position count = 0;
  for (; !text.empty(); text.remove_prefix(std::min(kPiece, text.size()))) {
    std::make_unsigned_t<Unit> breaks = 0;
    for (const Unit c : text.substr(0, kPiece)) breaks += c == '\r';
    count += breaks;
  }
  return count;
}

}  // namespace

Position CountBreaks(TextView text) {
  return text.Visit([](auto own) { return CountBreaks(own); });
}

Position Leaf::BreaksBetween(Position from, Position to) const {
  return marks.empty() ? 0 : CountBreaks(Text(from, to));
}

Position Leaf::BreakAt(Position index) const {
  return text.View().Visit([index](auto own) {
    std::size_t at = own.find('\r');
    for (Position i = 0; i < index; ++i) at = own.find('\r', at + 2);
    return static_cast<Position>(at);
  });
}

void Leaf::Replace(Position at, Position removed, const Leaf& piece) {
  // Allocate everything before changing anything.
  MakeRoom(marks, piece.marks.size());
  runs.MakeRoomFor(piece.runs);
  const Position gone = BreaksBetween(at, at + removed);
  const Position before = gone > 0 || !piece.marks.empty() ? BreaksBetween(0, at) : 0;
  text.Replace(at, removed, piece.text.View());
  runs.Replace(at, removed, piece.runs);
  if (gone > 0 || !piece.marks.empty()) {
    const auto first = marks.begin() + before;
    marks.insert(marks.erase(first, first + gone), piece.marks.begin(), piece.marks.end());
  }
  assert(IsSound());
}

bool Leaf::IsSound() const {
  return runs.Length() == Size() && static_cast<Position>(marks.size()) == CountBreaks(text.View());
}

Leaf Leaf::Part(Position from, Position to) const {
  Leaf part{LeafText(Text(from, to)), runs.Part(from, to), {}};
  if (const Position breaks = BreaksBetween(from, to); breaks > 0) {
    const auto first = marks.begin() + BreaksBetween(0, from);
    part.marks.assign(first, first + breaks);
  }
  return part;
}

}  // namespace lumenote
