// A leaf: about two thousand units of text with their formats.
#pragma once
#include <memory>
#include <vector>

#include "document/text/LeafText.h"
#include "document/text/Runs.h"

namespace lumenote {

/// Invariants: the runs cover the text; there is one mark, the ended paragraph's format, for each
/// CR LF of the text, and no CR or LF stands alone.
struct Leaf {
  static constexpr Position kCapacity = LeafText::kCapacity;

  LeafText text;
  Runs runs;
  std::vector<ParaId> marks;

  Position Size() const { return text.Size(); }
  TextView Text(Position from, Position to) const {
    return text.View().Part(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
  }
  /// Count of the breaks in a part of the text.
  Position BreaksBetween(Position from, Position to) const;
  /// Where the break number `index` (from 0) begins.
  Position BreakAt(Position index) const;
  /// Puts `piece` in the place of `removed` units at `at`; the result must fit. Nothing has changed
  /// when an allocation fails.
  void Replace(Position at, Position removed, const Leaf& piece);
  Leaf Part(Position from, Position to) const;
  /// Whether the invariants hold, for assertions.
  bool IsSound() const;
};

/// Leaves are shared between lists; a list copies one before it writes to it.
using LeafPointer = std::shared_ptr<Leaf>;

/// Count of the breaks in `text`, which cuts none.
Position CountBreaks(TextView text);

}  // namespace lumenote
