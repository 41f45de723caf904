// Merges several edits into one change.
#pragma once
#include <algorithm>
#include <optional>

#include "surface/editing/SurfaceView.h"

namespace lumenote {

/// Extends `change` to cover `edit`, whose positions refer to the document after `change`.
inline void MergeEdit(std::optional<DocumentChange>& change, const DocumentChange& edit) {
  if (!change) {
    change = edit;
    return;
  }
  const Position start = std::min(change->at, edit.at);
  const Position end = std::max(change->at + change->inserted, edit.at + edit.removed);
  change = DocumentChange{start, end - start - change->inserted + change->removed,
                          end - start - edit.removed + edit.inserted};
}

}  // namespace lumenote
