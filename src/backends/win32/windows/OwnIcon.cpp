#include "backends/win32/windows/OwnIcon.h"

#include "backends/win32/toolkit/Window.h"
#include "backends/win32/windows/IconNumber.h"

namespace lumenote {

void ShowOwnIcon(HWND window) {
  const HICON icon = LoadIconW(OwnModule(), MAKEINTRESOURCEW(LUMENOTE_ICON));
  for (const WPARAM size : {ICON_SMALL, ICON_BIG})
    SendMessageW(window, WM_SETICON, size, reinterpret_cast<LPARAM>(icon));
}

}  // namespace lumenote
