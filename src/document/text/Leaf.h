// A leaf: about two thousand units of formatted text.
#pragma once
#include <memory>
#include <vector>

#include "document/text/LeafText.h"
#include "document/text/Runs.h"

namespace lumenote {

/// Invariants: the runs cover the text; each CR LF has one mark, the format of the paragraph that
/// it ends; no CR or LF is unpaired.
struct Leaf {
  static constexpr Position kCapacity = LeafText::kCapacity;

  LeafText text;
  Runs runs;
  std::vector<ParaId> marks;

  Position Size() const { return text.Size(); }
  TextView Text(Position from, Position to) const {
    return text.View().Part(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
  }
  /// Count of the breaks in `from`..`to`.
  Position BreaksBetween(Position from, Position to) const;
  /// Start of the break with index `index`, from 0.
  Position BreakAt(Position index) const;
  /// Replaces `removed` units at `at` by `piece`; the result must fit. A failed allocation changes
  /// nothing.
  void Replace(Position at, Position removed, const Leaf& piece);
  Leaf Part(Position from, Position to) const;
  /// Whether the invariants hold, for assertions.
  bool IsSound() const;
};

/// Leaves are shared between lists; a list copies a shared leaf before writing to it.
using LeafPointer = std::shared_ptr<Leaf>;

/// Count of the breaks in `text`, which must not split any.
Position CountBreaks(TextView text);

}  // namespace lumenote
