// The format runs of a leaf.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/Position.h"
#include "document/formats/Formats.h"
#include "document/text/MakeRoom.h"

namespace lumenote {

/// A length and a format number, packed in 32 bits.
struct Run {
  std::uint32_t length : 12;
  std::uint32_t format : 20;
};

/// Invariants: no run is empty; neighbours differ in format.
class Runs {
 public:
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  /// Format of the unit at `at`, which must lie inside.
  CharId FormatAt(Position at) const;

  void Append(Position length, CharId format);
  /// Allocates what `Replace` by `inserted` may need, so that it cannot fail.
  void MakeRoomFor(const Runs& inserted) { MakeRoom(items_, inserted.items_.size() + 2); }
  /// Replaces `removed` units at `at` by `inserted`.
  void Replace(Position at, Position removed, const Runs& inserted);
  Runs Part(Position from, Position to) const;
  /// A copy with each format replaced by `map(format)`.
  template <class Map>
  Runs Mapped(Map map) const {
    Runs result;
    result.items_.reserve(items_.size());
    for (Run run : items_) result.Append(run.length, map(CharId{run.format}));
    return result;
  }
  void Clear();
  Position Length() const { return length_; }
  /// Whether the invariants hold, for assertions.
  bool IsSound() const;

 private:
  using Index = std::ptrdiff_t;
  /// A run's index and start.
  struct Location {
    Index index = 0;
    Position start = 0;
  };

  /// The run of the unit at `at`, which must lie inside; searched from the nearer end.
  Location Holding(Position at) const;
  Position LengthOf(Index index) const { return static_cast<Position>(items_[index].length); }
  /// Index of the run that starts at `at`; splits the run that contains `at`.
  Index CutAt(Position at);
  /// Merges run `index` with the one before if their formats are equal.
  void JoinBefore(Index index);
  /// Does `Replace` if it only changes the length of one run; returns whether it did.
  bool Resize(Position at, Position removed, const Runs& inserted);

  std::vector<Run> items_;
  Position length_ = 0;  // sum of all runs
};

}  // namespace lumenote
