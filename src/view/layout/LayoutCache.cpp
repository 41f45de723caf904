#include "view/layout/LayoutCache.h"

#include <algorithm>
#include <cassert>

#include "document/tables/TableRow.h"

namespace lumenote {

namespace {

// Long paragraphs are laid out in pieces of about this many characters: few enough to make typing
// cheap.
constexpr Position kPieceLength = 800;
// Nor do pieces have many more runs of a format and tabs, which take longer than characters.
constexpr int kPieceRuns = 200;
// Within this distance of a known line start, lines are laid out exactly from there; beyond it, a
// line is assumed to start after some nearby space.
constexpr Position kExactReach = 40 * kPieceLength;
// How much layout is kept on either side of what is visible.
constexpr Position kKept = 60'000;
constexpr std::size_t kMaxPieces = 1'000;

}  // namespace

LayoutCache::Iterator LayoutCache::FirstBehind(Position position) {
  return std::upper_bound(pieces_.begin(), pieces_.end(), position,
                          [](Position value, const auto& piece) { return value < piece->from; });
}

const Piece* LayoutCache::Find(Position position) {
  const Iterator behind = FirstBehind(position);
  if (behind == pieces_.begin()) return nullptr;
  Piece& piece = **std::prev(behind);
  if (!piece.Holds(position)) return nullptr;
  return &piece;
}

const Piece& LayoutCache::Add(std::unique_ptr<Piece> piece) {
  const Iterator first = FirstBehind(piece->from - 1);
  const Position end = piece->to + (piece->closes ? 1 : 0);
  const Iterator last =
      std::find_if(first, pieces_.end(), [&](const auto& other) { return other->from >= end; });
  const Piece& added = **pieces_.insert(pieces_.erase(first, last), std::move(piece));
  assert(IsSound(added.from));
  return added;
}

/// How much text from `from` on makes a piece.
Position LayoutCache::UsualLength(Position from, Position paragraphEnd) const {
  const Position end = std::min(from + kPieceLength, paragraphEnd);
  int runs = 0;
  Position length = kPieceLength;
  document_.ForEachRun(from, end, [&](Position at, TextView text, CharId) {
    for (std::size_t i = 0; i < text.Size(); i = text.Find('\t', i) + 1)
      if (++runs == kPieceRuns) length = at + static_cast<Position>(i) - from;
  });
  return length;
}

const Piece& LayoutCache::LayOutFrom(Position from, Position paragraphEnd) {
  const Iterator behind = FirstBehind(from);
  PieceSpan span{.from = from};
  if (behind != pieces_.end() && (*behind)->from < paragraphEnd) span.nextKnown = (*behind)->from;
  const bool nextIsNear = span.nextKnown >= 0 && span.nextKnown - from <= kPieceLength;
  Position length =
      nextIsNear ? span.nextKnown - from + kPieceLength / 4 : UsualLength(from, paragraphEnd);
  for (;; length *= 2) {
    span.complete = paragraphEnd - from <= length + length / 2;
    span.to = span.complete ? paragraphEnd : document_.SnapBackward(from + length);
    if (auto piece = layouter_.LayOut(document_, span)) return Add(std::move(piece));
  }
}

// A line start at or before `position` in its paragraph, to search from.
Position LayoutCache::StartNear(Position position, Position paragraphStart) {
  const Iterator behind = FirstBehind(position);
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

// Lays out the lines that end at `position`, a line start, beginning at a known or assumed line
// start of the same paragraph.
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

// The first piece that an edit at `position` may change: the one that holds it, or the previous one
// if its last line might now have room for the edited word.
LayoutCache::Iterator LayoutCache::FirstTouched(Position position) {
  Iterator first = FirstBehind(position);
  while (first != pieces_.begin() && (*std::prev(first))->to >= position) --first;
  if (first == pieces_.begin() || first == pieces_.end()) return first;
  const bool inFirstLine = (*first)->LineOf(position) == 0;
  return inFirstLine && !(*std::prev(first))->closes ? std::prev(first) : first;
}

void LayoutCache::Changed(const DocumentChange& change) {
  const Iterator first = FirstTouched(change.at);
  const Iterator last = std::find_if(first, pieces_.end(), [&](const auto& piece) {
    return piece->from > change.at + change.removed;
  });
  for (Iterator piece = last; piece != pieces_.end(); ++piece) {
    (*piece)->from += change.inserted - change.removed;
    (*piece)->to += change.inserted - change.removed;
  }
  pieces_.erase(first, last);
  DropOldFormat(change.at);
  DropOldFormat(change.at + change.inserted);
  DropRows(change.at);
  DropRows(change.at + change.inserted);
  assert(IsSound(change.at) && IsSound(change.at + change.inserted));
}

// After a change of the paragraph's format, its other pieces are invalid, too.
void LayoutCache::DropOldFormat(Position position) {
  const Position paragraph = document_.ParagraphOf(position);
  const Iterator first = FirstBehind(document_.ParagraphStart(paragraph) - 1);
  const Iterator last = FirstBehind(document_.ParagraphEnd(paragraph));
  const ParaId format = document_.ParaFormatAt(position);
  pieces_.erase(
      std::remove_if(first, last, [&](const auto& piece) { return piece->format != format; }),
      last);
}

// An edit in a table may part or join rows, and with them paragraphs that it does not touch.
void LayoutCache::DropRows(Position position) {
  const Position first = FirstOfRowsAround(document_, position);
  const auto row = RowAround(document_, position);
  if (!row && first == document_.ParagraphStart(document_.ParagraphOf(position))) return;
  const Position last = row ? row->end : position;
  std::erase_if(pieces_, [&](const auto& piece) {
    const bool sound = row && piece->from == row->start && piece->to == row->end;
    return piece->to >= first && piece->from <= last && !sound;
  });
}

// Whether the order is kept, and each piece at `position` is sound.
bool LayoutCache::IsSound(Position position) const {
  const auto overlap = [](const auto& piece, const auto& next) {
    return piece->to + (piece->closes ? 1 : 0) > next->from;
  };
  const auto isSound = [&](const auto& piece) {
    const bool near = piece->from <= position && piece->to >= position;
    return !near || piece->IsSound(document_);
  };
  return std::ranges::adjacent_find(pieces_, overlap) == pieces_.end() &&
         std::ranges::all_of(pieces_, isSound);
}

void LayoutCache::Trim(Position from, Position to) {
  const auto isFar = [&](const auto& piece) {
    return piece->to < from - kKept || piece->from > to + kKept;
  };
  if (pieces_.size() > kMaxPieces) std::erase_if(pieces_, isFar);
}

}  // namespace lumenote
