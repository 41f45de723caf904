// Keeps the user out of the other windows while one is answered.
#pragma once
#include <vector>

#include "backends/win32/system/System.h"

namespace lumenote {

/// Disables every visible window of this thread but one, the host's included; enables them again at
/// its end. Locks nest.
class ModalLock {
 public:
  explicit ModalLock(HWND free);
  ~ModalLock();
  ModalLock(const ModalLock&) = delete;
  ModalLock& operator=(const ModalLock&) = delete;

 private:
  static BOOL CALLBACK Lock(HWND window, LPARAM self);

  HWND free_;
  std::vector<HWND> locked_;
};

}  // namespace lumenote
