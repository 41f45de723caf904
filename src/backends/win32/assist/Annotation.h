// A name for UI Automation, which does not ask the windows of the system's own controls.
#pragma once
#include <string>

#include "backends/win32/system/ComObject.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {

/// Noted where it looks, for as long as this lives; nothing where the system has no such place.
class Annotation {
 public:
  /// `window` must outlive it.
  explicit Annotation(HWND window) : window_(window) {}
  ~Annotation();
  Annotation(const Annotation&) = delete;
  Annotation& operator=(const Annotation&) = delete;

  void Name(const std::u16string& name);

 private:
  HWND window_;
  ComOwner<IAccPropServices> notes_;  // once there is a name
};

}  // namespace lumenote
