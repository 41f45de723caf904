// The fonts of controls.
#pragma once
#include <map>
#include <string>
#include <utility>

#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/toolkit/drawing/Units.h"

namespace lumenote {

/// Makes each font once and keeps it.
class ControlFonts {
 public:
  /// An empty family or a size of 0 points means the one of windows.
  HFONT Get(const std::u16string& family, float points, Scale scale);

 private:
  std::map<std::pair<std::u16string, int>, GdiObject<HFONT>> fonts_;
};

}  // namespace lumenote
