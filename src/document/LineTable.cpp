#include "document/LineTable.h"

#include <algorithm>
#include <cassert>
#include <functional>

namespace lumenote {

namespace {

constexpr char16_t kLineBreak = u'\v';
// A word broken over more lines than this is not laid out again from its start.
constexpr int kMaxCutLines = 16;
// The first piece laid out after an edit; each further one is twice as long.
constexpr Position kFirstPiece = LineTable::kPiece / 16;

}  // namespace

LineStarts::LineStarts(const Document& document, LineBreaker& breaker)
    : document_(document), breaker_(breaker) {
  Restart(0);
}

void LineStarts::Restart(Position paragraphStart) {
  starts_.assign(1, {paragraphStart, document_.ParaFormatAt(paragraphStart)});
  piece_ = kFirstPiece;
  complete_ = false;
}

bool LineStarts::Covers(Position position) const {
  if (position < starts_.front().at) return false;
  if (position <= starts_.back().at) return true;
  return document_.ParagraphOf(position) == document_.ParagraphOf(starts_.back().at);
}

// Lays out one more piece after the last known line. A piece without a line start in it (it fits on
// one line) is retried at twice the length, so that even endless lines cost little.
bool LineStarts::Extend() {
  if (complete_) return false;
  const auto [from, format] = starts_.back();
  const Position paragraph = document_.ParagraphOf(from);
  const Position end = document_.ParagraphEnd(paragraph);
  const std::size_t known = starts_.size();
  for (std::int64_t piece = piece_; starts_.size() == known; piece *= 2) {
    const bool whole = piece >= end - from;
    const Position to = whole ? end : document_.SnapBackward(from + static_cast<Position>(piece));
    for (const Position at : breaker_.Break(document_, from, to)) starts_.push_back({at, format});
    if (!whole) continue;
    complete_ = paragraph + 1 == document_.ParagraphCount();
    if (!complete_) starts_.push_back({end + 2, document_.ParaFormatAt(end + 2)});
    break;
  }
  piece_ = std::min(2 * piece_, LineTable::kPiece);
  assert(IsSound(known - 1));
  return true;
}

std::size_t LineStarts::LastUpTo(Position position) const {
  const auto behind = std::ranges::upper_bound(starts_, position, {}, &Start::at);
  return static_cast<std::size_t>(behind - starts_.begin()) - 1;
}

// The least index that a line of this paragraph, not before the last line known, can have.
std::size_t LineStarts::LeastIndexIn(Position paragraph) const {
  const Position between = paragraph - document_.ParagraphOf(starts_.back().at);
  return starts_.size() - 1 + static_cast<std::size_t>(between);
}

std::size_t LineStarts::IndexOf(Position position, std::size_t limit) {
  const Position paragraph = document_.ParagraphOf(position);
  while (starts_.back().at <= position) {
    if (LeastIndexIn(paragraph) >= limit) return limit;
    if (!Extend()) break;
  }
  return std::min(LastUpTo(position), limit);
}

bool LineStarts::Has(std::size_t line) {
  while (starts_.size() <= line && Extend()) {
  }
  return line < starts_.size();
}

Line LineStarts::At(std::size_t line) {
  assert(line < starts_.size());
  const Position start = starts_[line].at;
  if (!Has(line + 1)) return {start, document_.Length(), -1};
  const Position next = starts_[line + 1].at;
  if (StartsParagraph(next)) return {start, next - 2, next};
  return {start, document_.At(next - 1) == kLineBreak ? next - 1 : next, next};
}

bool LineStarts::StartsParagraph(Position start) const {
  return document_.ParagraphStart(document_.ParagraphOf(start)) == start;
}

bool LineStarts::FollowsSpace(Position start) const {
  const char16_t before = document_.At(start - 1);
  return before == u' ' || before == u'\t' || before == kLineBreak;
}

// The edited line may now begin elsewhere, since its first word may fit on the line before; if that
// word was broken over several lines, even the first of them may. A change of the paragraph format
// moves all its lines.
void LineStarts::Edited(Position at) {
  assert(at >= First());
  std::size_t line = LastUpTo(at);
  const bool reformatted = document_.ParaFormatAt(starts_[line].at) != starts_[line].format;
  for (int cut = 0; line > 0 && !StartsParagraph(starts_[line].at); --line) {
    if (reformatted || (!FollowsSpace(starts_[line].at) && ++cut <= kMaxCutLines)) continue;
    --line;
    break;
  }
  starts_.resize(line + 1);
  if (reformatted) starts_[line].format = document_.ParaFormatAt(starts_[line].at);
  piece_ = kFirstPiece;
  complete_ = false;
  assert(IsSound(line) && StartsParagraph(First()));
}

// Of the lines from index `from` on.
bool LineStarts::IsSound(std::size_t from) const {
  const auto first = starts_.begin() + static_cast<std::ptrdiff_t>(from);
  const auto isSound = [&](Start start) {
    return start.at <= document_.Length() && start.format == document_.ParaFormatAt(start.at);
  };
  return std::all_of(first, starts_.end(), isSound) &&
         std::ranges::adjacent_find(first, starts_.end(), std::greater_equal(), &Start::at) ==
             starts_.end();
}

LineTable::LineTable(const Document& document, LineBreaker& breaker)
    : document_(document), all_(document, breaker), near_(document, breaker) {}

std::int32_t LineTable::LineOf(Position position, std::int32_t limit) {
  const Position inside = std::clamp(position, 0, document_.Length());
  return static_cast<std::int32_t>(all_.IndexOf(inside, static_cast<std::size_t>(limit)));
}

Position LineTable::LineStart(std::int32_t line) {
  if (line < 0 || !all_.Has(static_cast<std::size_t>(line))) return -1;
  return all_.At(static_cast<std::size_t>(line)).start;
}

Position LineTable::LineEnd(std::int32_t line) {
  if (line < 0 || !all_.Has(static_cast<std::size_t>(line))) return -1;
  return all_.At(static_cast<std::size_t>(line)).end;
}

Line LineTable::LineAt(Position position) {
  position = std::clamp(position, 0, document_.Length());
  if (all_.Covers(position)) return all_.At(all_.IndexOf(position));
  if (!near_.Covers(position))
    near_.Restart(document_.ParagraphStart(document_.ParagraphOf(position)));
  return near_.At(near_.IndexOf(position));
}

void LineTable::Edited(Position at) {
  all_.Edited(at);
  if (near_.First() == 0) return;  // unused: `all_` starts there
  if (near_.First() <= at)
    near_.Edited(at);
  else
    near_.Restart(0);
}

void LineTable::Reset() {
  all_.Restart(0);
  near_.Restart(0);
}

}  // namespace lumenote
