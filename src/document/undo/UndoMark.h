// A point in the undo history that a command can be taken back to.
#pragma once
#include <cstddef>
#include <cstdint>

#include "base/Position.h"

namespace lumenote {

/// Good until something is undone, redone or cleared.
struct UndoMark {
  std::uint64_t age = 0;      // changes at every undo, redo and clearing
  std::size_t steps = 0;      // begun so far
  std::size_t edits = 0;      // in the log
  Position lastInserted = 0;  // by the last of them, which typing extends
};

}  // namespace lumenote
