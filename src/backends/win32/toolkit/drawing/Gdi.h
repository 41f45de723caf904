// Owners of the system's drawing objects.
#pragma once
#include <atomic>

#include "backends/win32/system/OwnedHandle.h"
#include "backends/win32/system/System.h"

namespace lumenote {

/// Drawing objects that are owned now, for leak tests.
class GdiCount {
 public:
  static int Alive() { return alive_; }

 protected:
  GdiCount() { ++alive_; }
  GdiCount(const GdiCount&) { ++alive_; }
  GdiCount& operator=(const GdiCount&) = default;
  ~GdiCount() { --alive_; }

 private:
  static inline std::atomic<int> alive_ = 0;
};

template <class Handle, class Free>
class GdiOwner : private GdiCount, public OwnedHandle<Handle, Free> {
 public:
  using OwnedHandle<Handle, Free>::OwnedHandle;
};

struct ObjectDeletion {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
/// Owns a font, brush, pen, bitmap or region.
template <class Handle>
using GdiObject = GdiOwner<Handle, ObjectDeletion>;

/// Selects an object into a device context for a block.
class SelectScope {
 public:
  SelectScope(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  ~SelectScope() { SelectObject(dc_, before_); }
  SelectScope(const SelectScope&) = delete;
  SelectScope& operator=(const SelectScope&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

/// The device context of a window (of the screen, for null) for a block.
class DcScope {
 public:
  explicit DcScope(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~DcScope() { ReleaseDC(window_, dc_); }
  DcScope(const DcScope&) = delete;
  DcScope& operator=(const DcScope&) = delete;

  HDC Get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

/// Answers WM_PAINT for a block.
class PaintScope {
 public:
  explicit PaintScope(HWND window) : window_(window) { BeginPaint(window, &paint_); }
  ~PaintScope() { EndPaint(window_, &paint_); }
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;

  HDC Get() const { return paint_.hdc; }
  const RECT& Area() const { return paint_.rcPaint; }

 private:
  HWND window_;
  PAINTSTRUCT paint_ = {};
};

}  // namespace lumenote
