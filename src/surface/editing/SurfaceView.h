// What a surface tells the view that shows it.
#pragma once
#include <optional>

#include "document/LineTable.h"
#include "document/undo/Undo.h"

namespace lumenote {

/// One change of the document, after which it is consistent: `removed` units at `at` became
/// `inserted` ones. A format-only change has both equal. The paragraphs it touches may look
/// different from their beginning on.
using DocumentChange = EditExtent;

/// What a view wants to know; called after the fact. An edit made from inside one is refused.
class SurfaceView {
 public:
  virtual ~SurfaceView() = default;
  virtual void DocumentChanged(const DocumentChange& change) = 0;
  virtual void SelectionChanged() = 0;
  virtual void WrapWidthChanged() = 0;
  /// Scrolls so that the caret can be seen; called at every move, so best done when next painting.
  virtual void RevealCaret() = 0;
  /// How many lines a page key moves.
  virtual int LinesPerPage() const = 0;
  /// The line that holds `position`, as the view shows it or would; empty when the view has no
  /// lines of its own. Far inside a very long paragraph a view need not begin lines where a layout
  /// of the whole paragraph would.
  virtual std::optional<Line> ShownLine(Position) { return std::nullopt; }
};

}  // namespace lumenote
