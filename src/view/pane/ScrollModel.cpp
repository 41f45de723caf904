#include "view/pane/ScrollModel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace lumenote {

namespace {

// Documents up to these sizes are laid out completely, in time, for the scroll bar.
constexpr Position kSmallLength = 20'000;
constexpr Position kSmallCount = 300;
constexpr int kRefined = 16;  // pieces at once
// Characters of a line that is full, where none is known.
constexpr double kUsualLine = 100;

/// Number of characters of a piece, including its break.
double Span(const Piece& piece) { return piece.to - piece.from + (piece.closes ? 2 : 0); }

}  // namespace

ScrollModel::Anchor ScrollModel::Top() {
  const Piece& piece = cache_.At(std::min(line_, document_.Length()));
  const int line = piece.LineOf(std::clamp(line_, piece.from, piece.to));
  return {&piece, piece.lines[static_cast<std::size_t>(line)].top + hidden_};
}

// Whole pixels keep text crisp.
void ScrollModel::Top(Anchor anchor) {
  anchor.offset = std::round(anchor.offset);
  const int line = anchor.piece->LineAt(anchor.offset);
  line_ = anchor.piece->LineStart(line);
  hidden_ = anchor.offset - anchor.piece->lines[static_cast<std::size_t>(line)].top;
}

ScrollModel::Anchor ScrollModel::Moved(Anchor anchor, double pixels) {
  double offset = anchor.offset + pixels;
  const Piece* piece = anchor.piece;
  while (offset >= piece->height) {
    const Piece* next = cache_.After(*piece);
    if (!next) break;
    offset -= piece->height;
    piece = next;
  }
  while (offset < 0) {
    const Piece* previous = cache_.Before(*piece);
    if (!previous) return {piece, 0};
    offset += previous->height;
    piece = previous;
  }
  return {piece, offset};
}

double ScrollModel::RoomBelow(Anchor anchor) {
  double filled = -anchor.offset;
  for (const Piece* piece = anchor.piece; piece; piece = cache_.After(*piece)) {
    filled += piece->height;
    if (filled >= paneHeight_) return 0;
  }
  return paneHeight_ - filled;
}

std::vector<ShownPiece> ScrollModel::Visible() {
  Anchor top = Top();
  if (const double room = RoomBelow(top); room > 0) {
    top = Moved(top, -room);
    Top(top);
  }
  std::vector<ShownPiece> shown;
  double y = -top.offset;
  for (const Piece* piece = top.piece; piece; piece = cache_.After(*piece)) {
    shown.push_back({piece, y});
    y += piece->height;
    if (y >= paneHeight_) break;
  }
  return shown;
}

// Laying out a neighbour may replace pieces that are shown, so their places are taken first.
std::optional<double> ScrollModel::YNear(Position position) {
  const std::vector<ShownPiece> shown = Visible();
  for (const ShownPiece& item : shown)
    if (item.piece->Holds(position)) return item.y;
  const auto holds = [&](const Piece* piece) { return piece && piece->Holds(position); };
  const auto [first, top] = shown.front();
  if (position < first->from) {
    const Piece* before = cache_.Before(*first);
    return holds(before) ? std::optional(top - before->height) : std::nullopt;
  }
  const Piece* last = shown.back().piece;
  const double bottom = shown.back().y + last->height;
  return holds(cache_.After(*last)) ? std::optional(bottom) : std::nullopt;
}

void ScrollModel::By(double pixels) {
  Top(Moved(Top(), pixels));
  Visible();
}

void ScrollModel::ToStart() {
  line_ = 0;
  hidden_ = -cache_.At(0).lines.front().top;
}

void ScrollModel::Reveal(Position position) {
  const std::optional<double> y = YNear(position);
  const Piece& piece = cache_.At(position);
  const PieceLine& line = piece.lines[static_cast<std::size_t>(piece.LineOf(position))];
  if (!y) {
    Top(Moved({&piece, line.top}, -(paneHeight_ - line.height) / 2));
    return;
  }
  const double top = *y + line.top;
  const double below = top + line.height - paneHeight_;
  if (top < 0)
    By(top);
  else if (below > 0)
    By(std::min(below, top));
}

// The top line stays as long as it exists.
void ScrollModel::Changed(const DocumentChange& change) {
  if (change.at >= line_) return;
  const Position end = change.at + change.removed;
  if (end <= line_)
    line_ += change.inserted - change.removed;
  else
    line_ = std::min(line_, change.at + change.inserted);
}

// --- the scale

bool ScrollModel::IsSmall() const {
  return document_.Length() <= kSmallLength && document_.ParagraphCount() <= kSmallCount;
}

double ScrollModel::CharacterHeight() {
  if (heightOfCharacter_ > 0) return heightOfCharacter_;
  double height = 0;
  double characters = 0;
  for (const ShownPiece& item : Visible()) {
    height += item.piece->height;
    characters += Span(*item.piece);
  }
  return heightOfCharacter_ = height / std::max(characters, 1.0);
}

ScrollModel::Scale ScrollModel::Read() {
  const Anchor top{Visible().front().piece, Top().offset};
  firstGap_ = -1;
  return IsSmall() ? ReadPieces(top) : Estimate(top);
}

ScrollModel::Scale ScrollModel::ReadPieces(Anchor top) {
  Scale scale;
  Position next = 0;
  const auto skipTo = [&](Position end) {
    if (next >= end) return;
    if (firstGap_ < 0) firstGap_ = next;
    scale.total += Guess(next, end);
  };
  for (const auto& piece : cache_.Pieces()) {
    skipTo(piece->from);
    if (piece.get() == top.piece) scale.value = scale.total + top.offset;
    scale.total += piece->height;
    next = piece->from + static_cast<Position>(Span(*piece));
  }
  skipTo(document_.Length() + 2);
  return scale;
}

// Each paragraph has as many lines as it would have if all were like those that are laid out.
double ScrollModel::Guess(Position from, Position to) const {
  double height = 0;
  double lines = 0;
  double full = 0;
  double characters = 0;  // of the full lines
  for (const auto& piece : cache_.Pieces()) {
    height += piece->height;
    lines += static_cast<double>(piece->lines.size());
    full += static_cast<double>(piece->lines.size()) - 1;
    characters += piece->lines.back().start;
  }
  const double room = full > 0 ? characters / full : kUsualLine;
  double guessed = 0;
  for (Position end = from; from < to; from = end + 2) {
    end = std::min(document_.ParagraphEnd(document_.ParagraphOf(from)), to);
    guessed += std::max(1.0, std::ceil((end - from) / room));
  }
  return guessed * height / lines;
}

void ScrollModel::Refine() {
  if (firstGap_ < 0) return;
  const Piece* piece = &cache_.At(std::min(firstGap_, document_.Length()));
  for (int count = 1; piece && count < kRefined; ++count) piece = cache_.After(*piece);
}

// Whatever the estimate, the scale's end coincides with the last line.
ScrollModel::Scale ScrollModel::Estimate(Anchor top) {
  const double unit = CharacterHeight();
  const double share = top.offset / top.piece->height;
  Scale scale;
  scale.total = std::max((document_.Length() + 2.0) * unit, 2 * paneHeight_);
  const double most = scale.total - paneHeight_;
  scale.value = (top.piece->from + share * Span(*top.piece)) * unit;
  const ShownPiece last = Visible().back();
  const bool atEnd = last.piece->closes && last.piece->to == document_.Length() &&
                     last.y + last.piece->height <= paneHeight_ + 0.5;
  scale.value = atEnd ? most : std::min(scale.value, most - 1);
  return scale;
}

void ScrollModel::To(double value) {
  const double most = Read().total - paneHeight_;
  if (IsSmall()) {
    ToStart();
    By(value >= most ? std::numeric_limits<float>::max() : value);
    return;
  }
  const double unit = CharacterHeight();
  const double characters = value >= most ? document_.Length() : std::max(value, 0.0) / unit;
  const auto position = static_cast<Position>(std::min<double>(characters, document_.Length()));
  const Piece& piece = cache_.At(document_.SnapBackward(position));
  const double share = (characters - piece.from) / std::max(Span(piece), 1.0);
  Top({&piece, std::clamp(share, 0.0, 1.0) * piece.height});
  Visible();
}

}  // namespace lumenote
