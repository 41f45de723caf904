// The notifications that a surface sends to the view that shows it.
#pragma once
#include <optional>

#include "document/LineTable.h"
#include "document/undo/Undo.h"

namespace lumenote {

/// One change of the document: `removed` units at `at` became `inserted` ones; both are equal for a
/// format-only change. Affected paragraphs may need layout from their first character on.
using DocumentChange = EditRange;

/// Called after the fact, when the document is consistent again. An edit made from inside is
/// refused.
class SurfaceView {
 public:
  virtual ~SurfaceView() = default;
  virtual void DocumentChanged(const DocumentChange& change) = 0;
  virtual void SelectionChanged() = 0;
  virtual void WrapWidthChanged() = 0;
  /// Scrolls the caret into view. Called for every move, so best deferred to the next paint.
  virtual void RevealCaret() = 0;
  /// The width in which lines are broken, in twips; 0 if the view lays out no lines.
  virtual double TextWidth() const { return 0; }
  /// Number of lines that a page key moves by.
  virtual int LinesPerPage() const = 0;
  /// The line that holds `position`, as the view shows it or would; empty if the view lays out no
  /// lines. Deep inside a very long paragraph the lines may begin elsewhere than in a layout of the
  /// whole paragraph.
  virtual std::optional<Line> ShownLine(Position) { return std::nullopt; }
  /// Types what is being composed. False if that has detached the view.
  virtual bool Complete() { return true; }
};

}  // namespace lumenote
