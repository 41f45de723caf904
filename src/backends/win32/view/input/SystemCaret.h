// The caret that the system blinks, and that assistive programs follow.
#pragma once
#include <optional>

#include "backends/win32/system/System.h"
#include "view/layout/Pixels.h"

namespace lumenote {

/// Exists while its window has the focus.
class SystemCaret {
 public:
  explicit SystemCaret(HWND window) : window_(window) {}
  ~SystemCaret() { Remove(); }
  SystemCaret(const SystemCaret&) = delete;
  SystemCaret& operator=(const SystemCaret&) = delete;

  /// Shows it in that place, in pixels of the client area; a caret out of sight is none.
  void Place(const std::optional<PixelRect>& box);
  void Remove();

 private:
  HWND window_;
  std::optional<PixelSize> size_;  // while it exists
};

}  // namespace lumenote
