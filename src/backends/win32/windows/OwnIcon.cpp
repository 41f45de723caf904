#include "backends/win32/windows/OwnIcon.h"

#include "backends/win32/toolkit/Window.h"

namespace lumenote {
namespace {

constexpr WORD kIcon = 100;

}  // namespace

void ShowOwnIcon(HWND window) {
  const HICON icon = LoadIconW(OwnModule(), MAKEINTRESOURCEW(kIcon));
  for (const WPARAM size : {ICON_SMALL, ICON_BIG})
    SendMessageW(window, WM_SETICON, size, reinterpret_cast<LPARAM>(icon));
}

}  // namespace lumenote
