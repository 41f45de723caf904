#include "view/layout/LayoutCache.h"

#include <algorithm>

namespace lumenote {

namespace {

// Long paragraphs are laid out in pieces of about so many characters: few enough that one more
// typed in it costs little.
constexpr Position kPieceLength = 800;
// So far behind a known line start lines are looked for from there on; beyond, a line is taken to
// begin behind some blank nearby.
constexpr Position kExactReach = 40 * kPieceLength;
// How much is kept on either side of what is looked at.
constexpr Position kKept = 60'000;
constexpr std::size_t kMaxPieces = 1'000;

}  // namespace

LayoutCache::Place LayoutCache::FirstBehind(Position position) {
  return std::upper_bound(pieces_.begin(), pieces_.end(), position,
                          [](Position value, const auto& piece) { return value < piece->from; });
}

const Piece* LayoutCache::Find(Position position) {
  const Place behind = FirstBehind(position);
  if (behind == pieces_.begin()) return nullptr;
  Piece& piece = **std::prev(behind);
  if (!piece.Holds(position)) return nullptr;
  return &piece;
}

const Piece& LayoutCache::Add(std::unique_ptr<Piece> piece) {
  const Place first = FirstBehind(piece->from - 1);
  const Position end = piece->to + (piece->closes ? 1 : 0);
  const Place last =
      std::find_if(first, pieces_.end(), [&](const auto& other) { return other->from >= end; });
  return **pieces_.insert(pieces_.erase(first, last), std::move(piece));
}

const Piece& LayoutCache::LayOutFrom(Position from, Position paragraphEnd) {
  const Place behind = FirstBehind(from);
  PieceSpan span{.from = from};
  if (behind != pieces_.end() && (*behind)->from <= paragraphEnd) span.nextKnown = (*behind)->from;
  const bool nextIsNear = span.nextKnown >= 0 && span.nextKnown - from <= kPieceLength;
  Position length = nextIsNear ? span.nextKnown - from + kPieceLength / 4 : kPieceLength;
  for (;; length *= 2) {
    span.complete = paragraphEnd - from <= length + kPieceLength / 2;
    span.to = span.complete ? paragraphEnd : document_.SnapBackward(from + length);
    if (auto piece = layouter_.LayOut(document_, span)) return Add(std::move(piece));
  }
}

// A line start at or before `position` in its paragraph, from which to look for its line.
Position LayoutCache::StartNear(Position position, Position paragraphStart) {
  const Place behind = FirstBehind(position);
  if (behind != pieces_.begin()) {
    const Piece& known = **std::prev(behind);
    if (known.from >= paragraphStart && position - known.to <= kExactReach) return known.to;
  }
  if (position - paragraphStart <= kExactReach) return paragraphStart;
  const Position back = document_.SnapBackward(position - kPieceLength);
  const std::u16string text = document_.Text(back, position);
  const std::size_t blank = text.find(u' ');
  return blank == text.npos ? back : back + static_cast<Position>(blank) + 1;
}

const Piece& LayoutCache::At(Position position) {
  if (const Piece* known = Find(position)) return *known;
  const Position paragraph = document_.ParagraphOf(position);
  const Position end = document_.ParagraphEnd(paragraph);
  const Position target = std::min(position, end);
  Position from = StartNear(target, document_.ParagraphStart(paragraph));
  for (;;) {
    const Piece* known = Find(from);
    const Piece& piece = known ? *known : LayOutFrom(from, end);
    if (piece.Holds(target)) return piece;
    from = piece.to;
  }
}

const Piece* LayoutCache::After(const Piece& piece) {
  if (!piece.closes) return &At(piece.to);
  const Position next = piece.to + 2;
  return next > document_.Length() ? nullptr : &At(next);
}

const Piece* LayoutCache::Before(const Piece& piece) {
  if (piece.from == 0) return nullptr;
  if (piece.opens) return &At(piece.from - 2);
  if (const Piece* known = Find(piece.from - 1)) return known;
  return &LayOutTo(piece.from);
}

// Lays out, from a known line start or a likely one, the lines that end just before `position`,
// which is a line's start in the same paragraph.
const Piece& LayoutCache::LayOutTo(Position position) {
  const Position start = document_.ParagraphStart(document_.ParagraphOf(position));
  Position from = StartNear(document_.SnapBackward(position - 1), start);
  for (;;) {
    const bool last = position - from <= 2 * kPieceLength;
    const PieceSpan span{.from = from,
                         .to = last ? position : document_.SnapBackward(from + kPieceLength),
                         .complete = last};
    auto piece = layouter_.LayOut(document_, span);
    if (!piece) piece = layouter_.LayOut(document_, {.from = from, .to = position});
    const Piece& added = Add(std::move(piece));
    if (added.to == position) return added;
    from = added.to;
  }
}

// The first piece that an edit at `position` may change: the one it lies in, or the one before when
// that one's last line may have room now for the word at the edit.
LayoutCache::Place LayoutCache::FirstTouched(Position position) {
  Place first = FirstBehind(position);
  while (first != pieces_.begin() && (*std::prev(first))->to >= position) --first;
  if (first == pieces_.begin() || first == pieces_.end()) return first;
  const bool inFirstLine = (*first)->LineOf(position) == 0;
  return inFirstLine && !(*std::prev(first))->closes ? std::prev(first) : first;
}

void LayoutCache::Changed(const DocumentChange& change) {
  const Place first = FirstTouched(change.at);
  const Place last = std::find_if(first, pieces_.end(), [&](const auto& piece) {
    return piece->from > change.at + change.removed;
  });
  for (Place piece = last; piece != pieces_.end(); ++piece) {
    (*piece)->from += change.inserted - change.removed;
    (*piece)->to += change.inserted - change.removed;
  }
  pieces_.erase(first, last);
  DropOldFormat(change.at);
  DropOldFormat(change.at + change.inserted);
}

// Of a paragraph whose format has changed, the pieces that the edit did not touch are wrong too.
void LayoutCache::DropOldFormat(Position position) {
  const Position paragraph = document_.ParagraphOf(position);
  const Place first = FirstBehind(document_.ParagraphStart(paragraph) - 1);
  const Place last = FirstBehind(document_.ParagraphEnd(paragraph));
  const ParaId format = document_.ParaFormatAt(position);
  pieces_.erase(
      std::remove_if(first, last, [&](const auto& piece) { return piece->format != format; }),
      last);
}

void LayoutCache::Trim(Position from, Position to) {
  const auto isFar = [&](const auto& piece) {
    return piece->to < from - kKept || piece->from > to + kKept;
  };
  if (pieces_.size() > kMaxPieces) std::erase_if(pieces_, isFar);
}

}  // namespace lumenote
