// Windows within a frame, whose border they leave visible.
#pragma once
#include "backends/win32/system/System.h"

namespace lumenote {

/// Cuts off what of a window would cover the right border of the one that it is in.
void ClipInFrame(HWND window);

}  // namespace lumenote
