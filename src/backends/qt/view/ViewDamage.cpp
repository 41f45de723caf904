#include "backends/qt/view/ViewDamage.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumenote {

namespace {

void AddCaret(QRegion& region, const std::optional<QRectF>& before,
              const std::optional<QRectF>& now) {
  if (before == now) return;
  for (const auto& caret : {before, now})
    if (caret) region += caret->toAlignedRect();
}

}  // namespace

QRegion ViewDamage::Strip(double top, double bottom) const {
  return QRectF(0, top, size_.width(), bottom - top).toAlignedRect();
}

std::vector<ViewDamage::Seen> ViewDamage::LinesNow() const {
  std::vector<Seen> lines;
  for (const ShownPiece& item : pane_.Visible())
    for (const PieceLine& line : item.piece->lines) {
      const double top = item.y + line.top;
      lines.push_back({line.look, top, top + line.height, item.y + line.baseline});
    }
  return lines;
}

QRegion ViewDamage::Take(const PaintState& state) {
  std::vector<Seen> now = LinesNow();
  QRegion region;
  const bool moved = size_ != pane_.Size() || scrolledRight_ != pane_.ScrolledRight();
  size_ = pane_.Size();
  scrolledRight_ = pane_.ScrolledRight();
  if (moved || shown_.empty())
    region = Strip(0, size_.height());
  else
    AddLines(region, now);
  AddSelection(region, state.selection);
  AddCaret(region, caret_, state.caret);
  AddCaret(region, dropCaret_, state.dropCaret);
  shown_ = std::move(now);
  selection_ = state.selection;
  caret_ = state.caret;
  dropCaret_ = state.dropCaret;
  return region;
}

// A line is painted with the room above it, which may have held another one.
void ViewDamage::AddLines(QRegion& region, const std::vector<Seen>& now) const {
  auto before = shown_.begin();
  double above = std::min(0.0, now.front().top);
  for (const Seen& line : now) {
    while (before != shown_.end() && before->top < line.top) ++before;
    const bool same = before != shown_.end() && *before == line &&
                      (before == shown_.begin() || std::prev(before)->bottom <= above);
    if (!same) region += Strip(above, line.bottom);
    above = line.bottom;
  }
  if (above < shown_.back().bottom) region += Strip(above, size_.height());
}

void ViewDamage::AddSelection(QRegion& region, Selection selection) {
  const auto add = [&](Position one, Position other) {
    const auto [from, to] = std::minmax(one, other);
    if (from != to) region += pane_.LinesBetween(from, to).toAlignedRect();
  };
  if (selection_ == selection) return;
  if (selection_.Length() == 0 || selection.Length() == 0) {
    add(selection_.start, selection_.end);
    add(selection.start, selection.end);
    return;
  }
  add(selection_.start, selection.start);
  add(selection_.end, selection.end);
}

}  // namespace lumenote
