// Translates a native window's geometry back to its form's.
#pragma once
#include <QDeadlineTimer>
#include <QPoint>
#include <QSize>
#include <optional>

#include "forms/values/Geometry.h"

namespace lumenote {

/// A form's geometry is requested in whole pixels and may settle elsewhere: on another pixel, or
/// where the window manager wants it. Only differences from the settled geometry are the user's
/// doing and go back to the form, so opening and closing a window leaves its twips unchanged.
class WindowGeometry {
 public:
  /// Limited to what a desktop can show; the form's own size is not.
  static QSize ClientSize(const Rect& bounds);
  static QPoint Corner(const Rect& bounds);

  /// The form's bounds were requested; for a moment the window may settle anywhere.
  void Asked(const Rect& bounds);
  /// The position last requested; empty at first.
  std::optional<QPoint> AskedCorner() const { return askedCorner_; }

  /// The client area has this size now. Returns the form's new bounds if that is the user's doing.
  std::optional<Rect> Resized(QSize client, const Rect& bounds);
  std::optional<Rect> Moved(QPoint corner, const Rect& bounds);

 private:
  QSize asked_;
  std::optional<QPoint> askedCorner_;
  QSize settledSize_;
  QPoint settledCorner_;
  QDeadlineTimer settling_{0};
};

}  // namespace lumenote
