// Screenshots of windows.
#pragma once
#include <string>

#include "backends/win32/system/System.h"

namespace lumenote {

/// Copies a window as the screen shows it to a PNG file. Raises PathAccess if that fails.
void SaveWindowShot(HWND window, const std::u16string& path);

}  // namespace lumenote
