#include "rtf/read/ItemKeeper.h"

#include <algorithm>
#include <utility>

namespace lumenote {
namespace {

constexpr std::size_t kMaxItems = 1024;  // before one character

using Kind = KeptItem::Kind;

/// Whether an item of `kind` after one of `last` continues it.
bool GoesOn(Kind last, Kind kind) {
  const bool defines = last == Kind::Section || last == Kind::Row;
  return defines ? kind == Kind::Words : kind == last;
}

}  // namespace

void ItemKeeper::Keep(KeptItem::Kind kind, std::string_view source) {
  const bool goesOn = !sealed_ && Pending() && GoesOn(pending_.back().kind, kind);
  sealed_ = false;
  if (!goesOn) pending_.push_back({kind});
  sources_ += source;
  pending_.back().end = static_cast<std::uint32_t>(sources_.size());
  pending_.back().cells = static_cast<std::uint32_t>(cells_.size());
}

void ItemKeeper::KeepCell(std::int32_t edge) {
  cells_.push_back(edge);
  ++pending_.back().cells;
}

void ItemKeeper::Keep(const KeptItems& items) {
  for (const KeptItem& item : items) {
    sealed_ = true;
    Keep(item.kind, item.source);
    for (const std::int32_t edge : item.cells) KeepCell(edge);
  }
}

ItemKeeper::Index ItemKeeper::NextIndex() {
  sealed_ = true;
  return taken_ + pending_.size();
}

KeptItem ItemKeeper::Between(const Stretch& before, const Stretch& stretch) const {
  return {.kind = stretch.kind,
          .source = sources_.substr(before.end, stretch.end - before.end),
          .cells = {cells_.begin() + before.cells, cells_.begin() + stretch.cells}};
}

KeptItems ItemKeeper::TakeSince(Index index) {
  const std::size_t first = std::clamp(index, taken_, NextIndex()) - taken_;
  const Stretch start = first == 0 ? Stretch() : pending_[first - 1];
  KeptItems items;
  Stretch before = start;
  for (std::size_t i = first; i < pending_.size(); before = pending_[i++])
    items.push_back(Between(before, pending_[i]));
  pending_.resize(first);
  sources_.resize(start.end);
  cells_.resize(start.cells);
  return items;
}

KeptItems ItemKeeper::Take() {
  const Index behind = NextIndex();
  KeptItems items;
  if (pending_.size() > kMaxItems) {
    pending_[kMaxItems - 1] = pending_.back();
    pending_[kMaxItems - 1].kind = Kind::Group;
    pending_.resize(kMaxItems);
  }
  items = TakeSince(taken_);
  taken_ = behind;
  return items;
}

}  // namespace lumenote
