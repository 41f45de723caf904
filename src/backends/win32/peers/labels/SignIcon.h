// The status bar's sign as an icon of the system.
#pragma once
#include <utility>

#include "backends/win32/toolkit/drawing/Gdi.h"
#include "forms/values/StatusSign.h"

namespace lumenote {

class SignIcon : private GdiCount {
 public:
  SignIcon() = default;
  /// Drawn in a square of `side` pixels.
  SignIcon(StatusSign sign, int side, COLORREF ink);
  SignIcon(SignIcon&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  SignIcon& operator=(SignIcon&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~SignIcon() {
    if (handle_) DestroyIcon(handle_);
  }

  /// Null for no sign.
  HICON Get() const { return handle_; }

 private:
  HICON handle_ = nullptr;
};

}  // namespace lumenote
