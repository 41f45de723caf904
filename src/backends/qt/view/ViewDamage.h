// What of a pane has to be painted anew.
#pragma once
#include <QRegion>
#include <vector>

#include "backends/qt/view/ViewPainter.h"

namespace lumenote {

/// Remembers what was painted last and finds the difference to what should be there now, so that a
/// character typed costs the lines it changed.
class ViewDamage {
 public:
  explicit ViewDamage(TextPane& pane) : pane_(pane) {}

  /// The region to paint so that the pane shows its present content and `state`.
  QRegion Take(const PaintState& state);
  /// Nothing on screen can be trusted any more.
  void Everything() { shown_.clear(); }
  /// Positions have moved; a selection that was painted cannot be told any more.
  void DocumentChanged() {
    if (selection_.Length() > 0) Everything();
  }

 private:
  struct Seen {
    std::size_t look;
    double top;
    double bottom;
    double baseline;
    bool operator==(const Seen&) const = default;
  };

  std::vector<Seen> LinesNow() const;
  void AddLines(QRegion& region, const std::vector<Seen>& now) const;
  void AddSelection(QRegion& region, Selection selection);
  QRegion Strip(double top, double bottom) const;

  TextPane& pane_;
  std::vector<Seen> shown_;  // lines from top to bottom
  double scrolledRight_ = 0;
  QSizeF size_;
  Selection selection_;
  std::optional<QRectF> caret_;
  std::optional<QRectF> dropCaret_;
};

}  // namespace lumenote
