// The icon of the component's windows.
#pragma once
#include "backends/win32/system/System.h"

namespace lumenote {

/// Gives a window the icon of the program or DLL that the component is in, if it has one.
void ShowOwnIcon(HWND window);

}  // namespace lumenote
