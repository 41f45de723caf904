// A savepoint in the undo history.
#pragma once
#include <cstddef>
#include <cstdint>

#include "base/Position.h"

namespace lumenote {

/// Valid until something is undone or redone, or the history is cleared.
struct UndoSavepoint {
  std::uint64_t age = 0;      // changes at each undo, redo and clearing
  std::size_t steps = 0;      // started so far
  std::size_t edits = 0;      // in the log
  Position lastInserted = 0;  // by the last edit, which typing extends
};

}  // namespace lumenote
