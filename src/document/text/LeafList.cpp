#include "document/text/LeafList.h"

#include <cassert>
#include <new>
#include <utility>

#include "base/RuntimeError.h"

namespace lumenote {
namespace {

/// The leaf for writing: copies a shared one first.
Leaf& Own(LeafPointer& leaf) {
  if (leaf.use_count() > 1) leaf = std::make_shared<Leaf>(*leaf);
  return *leaf;
}

}  // namespace

void LeafCursor::Next() {
  start_ += Pointer()->Size();
  if (++leaf_ < (*groups_)[group_].Size()) return;
  leaf_ = 0;
  ++group_;
}

LeafCursor LeafList::CursorAt(Position position) const {
  if (position >= Length()) return {groups_, groups_.Size(), 0, Length()};
  const Location location = Holding(position);
  return {groups_, location.group, location.leaf, location.before.length};
}

LeafList::Location LeafList::Holding(Position unit) const {
  const Position inLast = unit - last_.before.length;
  if (last_.group != kNowhere && inLast >= 0 && inLast < LeafAt(last_)->Size()) return last_;
  const auto group = groups_.HoldingUnit(unit);
  const auto leaf = groups_[group.index].HoldingUnit(unit - group.before.length);
  return last_ = {group.index, leaf.index, group.before + leaf.before};
}

LeafList::Location LeafList::HoldingBreak(Position index) const {
  const auto group = groups_.HoldingBreak(index);
  const auto leaf = groups_[group.index].HoldingBreak(index - group.before.breaks);
  return last_ = {group.index, leaf.index, group.before + leaf.before};
}

void LeafList::Add(LeafPointer leaf) {
  if (leaf->Size() > kMax - Length()) throw RuntimeError(ErrorNumber::Overflow);
  if (Empty() || groups_[groups_.Size() - 1].Size() == kMaxGroupSize) groups_.Push({});
  groups_.Change(groups_.Size() - 1, [&](LeafGroup& group) { group.Push(std::move(leaf)); });
}

void LeafList::Append(LeafList tail) {
  if (tail.Length() > kMax - Length()) throw RuntimeError(ErrorNumber::Overflow);
  ForgetLocation();
  const std::size_t seam = groups_.Size();
  groups_.Append(std::move(tail.groups_));
  if (seam == 0 || seam == groups_.Size()) return;
  const std::size_t leaf = groups_[seam - 1].Size();
  JoinGroups(seam);
  JoinLeaves(seam - 1, leaf);
  assert(IsSound());
}

LeafList LeafList::Split(Position at) {
  LeafList tail;
  if (at <= 0) std::swap(tail, *this);
  if (at >= Length()) return tail;
  Location location = Holding(at);
  if (at > location.before.length) {
    CutLeaf(location, at - location.before.length);
    ++location.leaf;
  }
  tail.groups_ = groups_.Cut(location.group + 1);
  LeafGroup rest;
  groups_.Change(location.group, [&](LeafGroup& group) { rest = group.Cut(location.leaf); });
  if (location.leaf == 0) groups_.Take(location.group);
  tail.groups_.Insert(0, std::move(rest));
  tail.JoinGroups(0);
  tail.JoinLeaves(0, 0);
  const std::size_t last = groups_.Size() - 1;
  JoinLeaves(last, groups_[last].Size() - 1);
  JoinGroups(last);
  assert(IsSound() && tail.IsSound());
  return tail;
}

LeafList LeafList::Slice(Position from, Position to) const {
  LeafList slice;
  for (LeafCursor leaf = CursorAt(from); !leaf.AtEnd() && leaf.Start() < to; leaf.Next()) {
    const Position first = std::max(from - leaf.Start(), 0);
    const Position last = std::min(to - leaf.Start(), leaf->Size());
    const bool whole = first == 0 && last == leaf->Size();
    slice.Add(whole ? leaf.Pointer() : std::make_shared<Leaf>(leaf->Part(first, last)));
  }
  if (slice.Empty()) return slice;
  slice.JoinLeaves(0, 0);
  const std::size_t last = slice.groups_.Size() - 1;
  slice.JoinLeaves(last, slice.groups_[last].Size() - 1);
  return slice;
}

LeafList LeafList::Replace(Position from, Position to, LeafList piece) {
  if (from == to && piece.Empty()) return {};
  if (piece.Length() > kMax - (Length() - (to - from))) throw RuntimeError(ErrorNumber::Overflow);
  if (auto removed = ReplaceInLeaf(from, to, piece)) return *std::move(removed);
  LeafList before = *this;
  try {
    return ReplaceAcrossLeaves(from, to, std::move(piece));
  } catch (const std::bad_alloc&) {
    std::swap(*this, before);
    throw;
  }
}

LeafList LeafList::ReplaceAcrossLeaves(Position from, Position to, LeafList piece) {
  LeafList tail = Split(to);
  LeafList removed = Split(from);
  Append(std::move(piece));
  Append(std::move(tail));
  return removed;
}

std::optional<LeafList> LeafList::ReplaceInLeaf(Position from, Position to, const LeafList& piece) {
  if (Empty()) return std::nullopt;
  static const Leaf kNothing;
  const Leaf& inserted = piece.Empty() ? kNothing : *piece.groups_[0][0];
  if (inserted.Size() != piece.Length()) return std::nullopt;
  // Text inserted between two leaves goes to the end of the first, where typing continues.
  const Location location = Holding(from == to && from > 0 ? from - 1 : from);
  const Leaf& leaf = *LeafAt(location);
  const Position at = from - location.before.length;
  const Position size = leaf.Size() - (to - from) + piece.Length();
  if (at + (to - from) > leaf.Size() || size == 0 || size > Leaf::kCapacity) return std::nullopt;
  LeafList removed;
  if (to > from) removed.Add(std::make_shared<Leaf>(leaf.Part(at, at + (to - from))));
  groups_.Change(location.group, [&](LeafGroup& group) {
    group.Change(location.leaf,
                 [&](LeafPointer& own) { Own(own).Replace(at, to - from, inserted); });
  });
  if (size < kMergeThreshold) Tidy(location);
  assert(IsSound());
  return removed;
}

bool LeafList::IsSound() const {
  for (std::size_t group = 0; group < groups_.Size(); ++group) {
    const LeafGroup& leaves = groups_[group];
    if (leaves.Empty() || leaves.Size() > kMaxGroupSize) return false;
    for (std::size_t leaf = 0; leaf < leaves.Size(); ++leaf)
      if (leaves[leaf]->Size() == 0 || leaves[leaf]->Size() > Leaf::kCapacity) return false;
  }
  return true;
}

// The edit is done already: without memory to merge, small leaves may remain until the next edit.
void LeafList::Tidy(const Location& location) {
  try {
    JoinLeaves(location.group, location.leaf);
    JoinGroups(location.group);
  } catch (const std::bad_alloc&) {
    ForgetLocation();
  }
}

Position LeafList::BreaksBefore(Position position) const {
  if (position >= Length()) return Breaks();
  const Location location = Holding(position);
  return location.before.breaks +
         LeafAt(location)->BreaksBetween(0, position - location.before.length);
}

Position LeafList::BreakAt(Position index) const {
  const Location location = HoldingBreak(index);
  return location.before.length + LeafAt(location)->BreakAt(index - location.before.breaks);
}

ParaId LeafList::MarkAt(Position index) const {
  const Location location = HoldingBreak(index);
  return LeafAt(location)->marks[static_cast<std::size_t>(index - location.before.breaks)];
}

void LeafList::CutLeaf(const Location& location, Position at) {
  groups_.Change(location.group, [&](LeafGroup& group) {
    const LeafPointer& whole = group[location.leaf];
    group.Insert(location.leaf + 1, std::make_shared<Leaf>(whole->Part(at, whole->Size())));
    group.Change(location.leaf,
                 [&](LeafPointer& leaf) { Own(leaf).Replace(at, leaf->Size() - at, {}); });
  });
}

void LeafList::JoinLeaves(std::size_t group, std::size_t leaf) {
  ForgetLocation();
  const auto join = [](LeafGroup& leaves, std::size_t left) {
    if (left + 1 >= leaves.Size()) return;
    if (leaves[left]->Size() + leaves[left + 1]->Size() > kMergeThreshold) return;
    leaves.Change(left,
                  [&](LeafPointer& own) { Own(own).Replace(own->Size(), 0, *leaves[left + 1]); });
    leaves.Take(left + 1);
  };
  groups_.Change(group, [&](LeafGroup& leaves) {
    join(leaves, leaf);
    if (leaf > 0) join(leaves, leaf - 1);
  });
}

void LeafList::JoinGroups(std::size_t group) {
  ForgetLocation();
  const auto join = [this](std::size_t left) {
    if (left + 1 >= groups_.Size()) return;
    if (groups_[left].Size() + groups_[left + 1].Size() > kMaxGroupSize) return;
    groups_.Change(left, [&](LeafGroup& own) { own.Append(groups_[left + 1]); });
    groups_.Take(left + 1);
  };
  join(group);
  if (group > 0) join(group - 1);
}

}  // namespace lumenote
