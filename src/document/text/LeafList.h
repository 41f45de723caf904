// The leaves of a document's text and formats, in two levels with sums.
#pragma once
#include <algorithm>
#include <limits>
#include <optional>

#include "document/text/Leaf.h"
#include "document/text/SummedList.h"

namespace lumenote {

inline TextSize SizeOf(const LeafPointer& leaf) {
  return {leaf->Size(), static_cast<Position>(leaf->marks.size())};
}
using LeafGroup = SummedList<LeafPointer>;

/// Iterates over the leaves of a list, which must not change meanwhile.
class LeafCursor {
 public:
  /// At the leaf whose first unit is at `start`, or at the end: after the last group.
  LeafCursor(const SummedList<LeafGroup>& groups, std::size_t group, std::size_t leaf,
             Position start)
      : groups_(&groups), group_(group), leaf_(leaf), start_(start) {}

  bool AtEnd() const { return group_ == groups_->Size(); }
  const LeafPointer& Pointer() const { return (*groups_)[group_][leaf_]; }
  const Leaf& operator*() const { return *Pointer(); }
  const Leaf* operator->() const { return Pointer().get(); }
  /// Position of the leaf's first unit in the list.
  Position Start() const { return start_; }
  void Next();

 private:
  const SummedList<LeafGroup>* groups_;
  std::size_t group_;
  std::size_t leaf_;
  Position start_;
};

/// Two levels: groups of leaves. An edit inside a leaf touches that leaf and the two sums above it;
/// a larger one costs in leaves, not in units. Copies of a list share its leaves.
///
/// Invariants: no leaf and no group is empty; a group has at most `kMaxGroupSize` leaves; two
/// neighbouring leaves of a group hold more than `kMergeThreshold` units together, and two
/// neighbouring groups more than half of `kMaxGroupSize` leaves, so that no sequence of edits
/// fragments the list.
///
/// The last leaf looked up is cached, so one list must not even be read on two threads at once (two
/// copies may).
///
/// A change that fails to allocate leaves the list unchanged.
///
/// Ranges must lie in 0..`Length()` and split no break. A list that would exceed `kMax` raises
/// Overflow before anything changes.
class LeafList {
 public:
  static constexpr Position kMax = std::numeric_limits<Position>::max();

  bool Empty() const { return groups_.Empty(); }
  Position Length() const { return groups_.Total().length; }
  Position Breaks() const { return groups_.Total().breaks; }

  /// Appends a leaf, which must not be empty.
  void Add(LeafPointer leaf);
  void Append(LeafList tail);
  /// Cuts off and returns everything from `at` on.
  LeafList Split(Position at);
  LeafList Slice(Position from, Position to) const;
  /// Replaces `from`..`to` by `piece` and returns what was there.
  LeafList Replace(Position from, Position to, LeafList piece);

  /// At the leaf that holds the unit at `position`, or at the end.
  LeafCursor CursorAt(Position position) const;
  /// Count of the breaks that start before `position`.
  Position BreaksBefore(Position position) const;
  /// Start of the break with index `index`, from 0.
  Position BreakAt(Position index) const;
  /// The paragraph format carried by the break with index `index`.
  ParaId MarkAt(Position index) const;

  /// Calls `visit(const Leaf&, Position start, Position from, Position to)` for each leaf that
  /// overlaps `from`..`to`, with its start in the list and the overlap relative to it.
  template <class Visit>
  void ForEachLeaf(Position from, Position to, Visit visit) const;
  /// Calls `visit(Position start, TextView text, CharId format)` for each run in `from`..`to`; a
  /// run that spans leaves is visited leaf by leaf.
  template <class Visit>
  void ForEachRun(Position from, Position to, Visit visit) const;
  /// Calls `visit(ParaId)` for the breaks with index `first` to `last` - 1.
  template <class Visit>
  void ForEachMark(Position first, Position last, Visit visit) const;

 private:
  /// Whether no leaf and no group is empty or too large, for assertions. After a failed allocation
  /// small leaves may remain.
  bool IsSound() const;

  static constexpr Position kMergeThreshold = Leaf::kCapacity / 2;
  static constexpr std::size_t kMaxGroupSize = 128;

  static constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

  /// A leaf's indices, and the size of everything before it.
  struct Location {
    std::size_t group = kNowhere;
    std::size_t leaf = 0;
    TextSize before;
  };

  Location Holding(Position unit) const;
  Location HoldingBreak(Position index) const;
  const LeafPointer& LeafAt(const Location& location) const {
    return groups_[location.group][location.leaf];
  }
  /// Does `Replace` within a single leaf, or returns empty if that is impossible.
  std::optional<LeafList> ReplaceInLeaf(Position from, Position to, const LeafList& piece);
  void CutLeaf(const Location& location, Position at);
  LeafList ReplaceAcrossLeaves(Position from, Position to, LeafList piece);
  /// Restore the invariants around a leaf or group that has shrunk.
  void JoinLeaves(std::size_t group, std::size_t leaf);
  void JoinGroups(std::size_t group);

  void Tidy(const Location& location);

  /// To be called after any change that moves leaves.
  void ForgetLocation() { last_ = {}; }

  SummedList<LeafGroup> groups_;
  mutable Location last_;  // of the last leaf looked up
};

template <class Visit>
void LeafList::ForEachLeaf(Position from, Position to, Visit visit) const {
  for (LeafCursor leaf = CursorAt(from); !leaf.AtEnd() && leaf.Start() < to; leaf.Next()) {
    const Position start = leaf.Start();
    visit(*leaf, start, std::max(from - start, 0), std::min(to - start, leaf->Size()));
  }
}

template <class Visit>
void LeafList::ForEachRun(Position from, Position to, Visit visit) const {
  ForEachLeaf(from, to, [&](const Leaf& leaf, Position start, Position first, Position last) {
    Position at = 0;
    for (Run run : leaf.runs) {
      const Position begin = std::max(at, first);
      at += static_cast<Position>(run.length);
      const Position end = std::min(at, last);
      if (begin >= end) continue;
      visit(start + begin, leaf.Text(begin, end), CharId{run.format});
    }
  });
}

template <class Visit>
void LeafList::ForEachMark(Position first, Position last, Visit visit) const {
  if (first >= last) return;
  const Position at = BreakAt(first);
  LeafCursor leaf = CursorAt(at);
  auto index = static_cast<std::size_t>(leaf->BreaksBetween(0, at - leaf.Start()));
  for (; first < last; leaf.Next(), index = 0) {
    for (; index < leaf->marks.size() && first < last; ++index, ++first) visit(leaf->marks[index]);
  }
}

}  // namespace lumenote
