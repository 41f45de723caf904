#include "backends/win32/windows/ModalLock.h"

namespace lumenote {

ModalLock::ModalLock(HWND free) : free_(free) {
  EnumThreadWindows(GetCurrentThreadId(), &Lock, reinterpret_cast<LPARAM>(this));
}

ModalLock::~ModalLock() {
  for (const HWND window : locked_)
    if (IsWindow(window)) EnableWindow(window, TRUE);
}

BOOL CALLBACK ModalLock::Lock(HWND window, LPARAM self) {
  auto& lock = *reinterpret_cast<ModalLock*>(self);
  if (window == lock.free_ || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  lock.locked_.push_back(window);
  EnableWindow(window, FALSE);
  return TRUE;
}

}  // namespace lumenote
