// A device context that belongs to no window.
#pragma once
#include "backends/win32/toolkit/drawing/Gdi.h"

namespace lumenote {

/// Compatible with the screen, or with another context; to measure text or to draw on a bitmap.
class MemoryDc : private GdiCount {
 public:
  explicit MemoryDc(HDC like = nullptr) : dc_(CreateCompatibleDC(like)) {}
  ~MemoryDc() { DeleteDC(dc_); }
  MemoryDc(const MemoryDc&) = delete;
  MemoryDc& operator=(const MemoryDc&) = delete;

  HDC Get() const { return dc_; }

 private:
  HDC dc_;
};

}  // namespace lumenote
