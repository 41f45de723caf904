// What a native window's size and place say about its form's.
#pragma once
#include <QDeadlineTimer>
#include <QPoint>
#include <QSize>
#include <optional>

#include "forms/values/Geometry.h"

namespace lumenote {

/// The form's geometry is asked for in whole pixels and may settle elsewhere: on some other pixel,
/// or where the window manager wants it. Only what differs from where it settled is the user's
/// doing, and only that difference goes back to the form, so that opening and closing a window
/// leaves its twips as they were.
class WindowGeometry {
 public:
  /// Bounded to what a desktop can show; the form's own size is not.
  static QSize ClientSize(const Rect& place);
  static QPoint Corner(const Rect& place);

  /// The form's place is being asked for; for a moment the window may go where it likes.
  void Asked(const Rect& place);
  /// Where the window was last asked to go; empty before.
  std::optional<QPoint> AskedCorner() const { return askedCorner_; }

  /// The client area has this size now; tells the form's new place if that is the user's doing.
  std::optional<Rect> Resized(QSize client, const Rect& place);
  std::optional<Rect> Moved(QPoint corner, const Rect& place);

 private:
  QSize asked_;
  std::optional<QPoint> askedCorner_;
  QSize settledSize_;
  QPoint settledCorner_;
  QDeadlineTimer settling_{0};
};

}  // namespace lumenote
