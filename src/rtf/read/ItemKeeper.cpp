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
  if (!goesOn) pending_.push_back({kind, 0});
  sources_ += source;
  pending_.back().end = static_cast<std::uint32_t>(sources_.size());
}

void ItemKeeper::Keep(const KeptItems& items) {
  for (const KeptItem& item : items) {
    sealed_ = true;
    Keep(item.kind, item.source);
  }
}

ItemKeeper::Index ItemKeeper::NextIndex() {
  sealed_ = true;
  return taken_ + pending_.size();
}

KeptItems ItemKeeper::TakeSince(Index index) {
  const std::size_t first = std::clamp(index, taken_, NextIndex()) - taken_;
  const std::size_t start = first == 0 ? 0 : pending_[first - 1].end;
  KeptItems items;
  std::size_t from = start;
  for (std::size_t i = first; i < pending_.size(); from = pending_[i++].end)
    items.push_back(
        {.kind = pending_[i].kind, .source = sources_.substr(from, pending_[i].end - from)});
  pending_.resize(first);
  sources_.resize(start);
  return items;
}

KeptItems ItemKeeper::Take() {
  const Index behind = NextIndex();
  KeptItems items;
  if (pending_.size() > kMaxItems) {
    pending_[kMaxItems - 1] = {Kind::Group, pending_.back().end};
    pending_.resize(kMaxItems);
  }
  items = TakeSince(taken_);
  taken_ = behind;
  return items;
}

}  // namespace lumenote
