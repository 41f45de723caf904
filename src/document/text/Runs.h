// The runs of one format in a leaf.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/Position.h"
#include "document/formats/Formats.h"
#include "document/text/MakeRoom.h"

namespace lumenote {

/// So many units of one format; both numbers in 32 bits.
struct Run {
  std::uint32_t length : 12;
  std::uint32_t format : 20;
};

/// Runs in a row: none is empty, neighbours differ in format.
class Runs {
 public:
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  /// Format of the unit at `at`, which lies inside.
  CharId FormatAt(Position at) const;

  void Append(Position length, CharId format);
  /// Takes the memory that `Replace` by `inserted` may need, so that it cannot fail.
  void MakeRoomFor(const Runs& inserted) { MakeRoom(items_, inserted.items_.size() + 2); }
  /// Puts `inserted` in the place of `removed` units at `at`.
  void Replace(Position at, Position removed, const Runs& inserted);
  Runs Part(Position from, Position to) const;
  /// The same lengths with each format replaced by `map(format)`.
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
  /// A run's index, and where it begins.
  struct Spot {
    Index index = 0;
    Position start = 0;
  };

  /// The run of the unit at `at`, which lies inside; looked for from the nearer end.
  Spot Holding(Position at) const;
  Position LengthOf(Index index) const { return static_cast<Position>(items_[index].length); }
  /// Index of the run that begins at `at`; a run with `at` inside is cut in two there.
  Index CutAt(Position at);
  /// Makes one run of `index` and the one before when their formats are the same.
  void JoinBefore(Index index);
  /// `Replace` when it only makes a run longer or shorter; returns whether it was so.
  bool Resize(Position at, Position removed, const Runs& inserted);

  std::vector<Run> items_;
  Position length_ = 0;  // of all together
};

}  // namespace lumenote
