#include "view/pane/ViewDamage.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <utility>

#include "view/backdrop/Backdrop.h"

namespace lumenote {

namespace {

bool IsWhole(double pixels) { return pixels == std::round(pixels); }

/// Whether a line's text may reach into its neighbours, whose pixels then do not move alone.
bool Overlaps(const std::vector<ShownPiece>& shown) {
  return std::ranges::any_of(shown, [](const ShownPiece& item) { return item.piece->overlaps; });
}

/// The units of a line that are selected, its paragraph's break among them.
Selection SelectedIn(const Piece& piece, const PieceLine& line, Selection selection) {
  const Position from = piece.ToPosition(line.start);
  const bool ends = piece.closes && line.end == piece.lines.back().end;
  const Position to = piece.ToPosition(line.end) + (ends ? 1 : 0);
  const Selection part{std::clamp(selection.start, from, to), std::clamp(selection.end, from, to)};
  return part.Length() == 0 ? Selection{} : Selection{part.start - from, part.end - from};
}

/// Whether all lines but one or two are where they were, as after a character typed.
template <class Lines>
bool MostlyStay(const Lines& before, const Lines& now) {
  if (before.size() != now.size()) return false;
  const int stay = std::transform_reduce(
      before.begin(), before.end(), now.begin(), 0, std::plus(),
      [](const auto& one, const auto& other) { return one == other ? 1 : 0; });
  return stay + 2 >= std::ssize(now);
}

}  // namespace

void Damage::Add(const PixelRect& area) {
  if (area.IsEmpty()) return;
  const PixelRect whole = area.Aligned();
  const bool joins = !areas.empty() && areas.back().left == whole.left &&
                     areas.back().right == whole.right && areas.back().bottom == whole.top;
  if (joins)
    areas.back().bottom = whole.bottom;
  else
    areas.push_back(whole);
}

// Before a backdrop, the lines of a piece take all its height.
ViewDamage::Lines ViewDamage::LinesOf(const std::vector<ShownPiece>& shown,
                                      Selection selection) const {
  Lines lines;
  for (const ShownPiece& item : shown) {
    const std::uint64_t backdrop = BackdropLook(pane_.Content(), *item.piece);
    const std::size_t first = lines.size();
    item.piece->ForEachBand([&](const PieceLine& line) {
      const double top = item.y + line.top;
      lines.push_back({line.look ^ backdrop, top, top + line.height, item.y + line.baseline,
                       SelectedIn(*item.piece, line, selection)});
    });
    if (backdrop == 0) continue;
    lines[first].top = item.y;
    lines.back().bottom = item.y + item.piece->height;
  }
  return lines;
}

Damage ViewDamage::Take(const ViewMarks& marks) {
  const std::vector<ShownPiece> shown = pane_.Visible();
  Lines now = LinesOf(shown, marks.selection);
  Damage damage;
  const bool moved = size_ != pane_.Size() || scrolledRight_ != pane_.ScrolledRight();
  size_ = pane_.Size();
  scrolledRight_ = pane_.ScrolledRight();
  if (moved || shown_.empty()) {
    damage.Add(Strip(0, size_.height));
  } else {
    if (!Overlaps(shown)) damage.shift = FindShift(now);
    if (damage.shift) Shift(damage);
    AddLines(damage, now);
    AddCaret(damage, marks_.caret, marks.caret);
    AddCaret(damage, marks_.dropCaret, marks.dropCaret);
  }
  shown_ = std::move(now);
  marks_ = marks;
  return damage;
}

// --- pixels that have only moved

std::optional<PixelShift> ViewDamage::FindShift(const Lines& now) const {
  if (MostlyStay(shown_, now)) return std::nullopt;
  PixelShift best;
  for (auto ahead = 1 - std::ssize(now); ahead < std::ssize(shown_); ++ahead) {
    const PixelShift run = LongestRun(now, ahead);
    if (run.bottom - run.top > best.bottom - best.top) best = run;
  }
  best.top = std::max(best.top, -best.by);
  best.bottom = std::min(best.bottom, size_.height - best.by);
  const bool whole = IsWhole(best.top) && IsWhole(best.bottom) && IsWhole(best.by);
  return whole && best.bottom - best.top >= size_.height / 4 ? std::optional(best) : std::nullopt;
}

// The lines of a row that were wholly seen and are so many lines further on elsewhere now, all as
// far from there.
PixelShift ViewDamage::LongestRun(const Lines& now, std::ptrdiff_t ahead) const {
  PixelShift best;
  PixelShift run;
  const auto first = std::max<std::ptrdiff_t>(0, -ahead);
  const auto end = std::min(std::ssize(now), std::ssize(shown_) - ahead);
  for (auto i = first; i < end; ++i) {
    const Seen& before = shown_[static_cast<std::size_t>(i + ahead)];
    const Seen& line = now[static_cast<std::size_t>(i)];
    const double by = line.top - before.top;
    const bool moved =
        by != 0 && before.MovedBy(by) == line && before.top >= 0 && before.bottom <= size_.height;
    if (!moved || by != run.by) run = {before.top, before.top, moved ? by : 0};
    if (moved) run.bottom = before.bottom;
    if (run.bottom - run.top > best.bottom - best.top) best = run;
  }
  return best;
}

// What is known to be shown after the shift; where the pixels came from, they are stale.
void ViewDamage::Shift(Damage& damage) {
  const PixelShift& shift = *damage.shift;
  const PixelRect target = shift.Target(size_.width);
  PixelRect stale = Strip(shift.top, shift.bottom);
  Lines moved;
  for (const Seen& line : shown_) {
    const bool inside = line.bottom > shift.top && line.top < shift.bottom;
    const bool covered = line.bottom > target.top && line.top < target.bottom;
    const bool seen = line.bottom > 0 && line.top < size_.height;
    if (inside) moved.push_back(line.MovedBy(shift.by));
    if (inside || covered) stale = stale.United(Strip(line.top, line.bottom));
    if (!inside && !covered && seen) moved.push_back(line);
  }
  shown_ = std::move(moved);
  damage.Add(Strip(stale.top, std::min(stale.bottom, target.top)));
  damage.Add(Strip(std::max(stale.top, target.bottom), stale.bottom));
}

// --- lines and carets

// A line is painted with the room above it, which may have held another one.
void ViewDamage::AddLines(Damage& damage, const Lines& now) const {
  auto before = shown_.begin();
  double above = std::min(0.0, now.front().top);
  for (const Seen& line : now) {
    while (before != shown_.end() && before->top < line.top) ++before;
    const bool same = before != shown_.end() && *before == line &&
                      (before == shown_.begin() || std::prev(before)->bottom <= above);
    if (!same) damage.Add(Strip(above, line.bottom));
    above = line.bottom;
  }
  if (above < shown_.back().bottom) damage.Add(Strip(above, size_.height));
}

// A caret that was painted moves with the pixels around it.
void ViewDamage::AddCaret(Damage& damage, const std::optional<PixelRect>& before,
                          const std::optional<PixelRect>& now) const {
  if (before == now && !damage.shift) return;
  if (before) damage.Add(*before);
  if (before && damage.shift) damage.Add(before->MovedBy(0, damage.shift->by));
  if (now) damage.Add(*now);
}

}  // namespace lumenote
