// The ground of a form, on which its controls stand.
#pragma once
#include <cstdint>
#include <functional>

#include "backends/win32/toolkit/PaintedWindow.h"
#include "backends/win32/toolkit/drawing/Gdi.h"

namespace lumenote {

class ContentWindow final : public PaintedWindow {
 public:
  explicit ContentWindow(HWND parent);

  /// 0xBBGGRR, or -1 for the desktop's own colour.
  void Ground(std::int32_t colour);
  std::int32_t Ground() const { return ground_; }

  /// Where no control is, the pointer moves, a button goes down, or none is held. May be empty.
  std::function<void(POINT)> mouseMoved;
  std::function<void()> pressed;
  std::function<void()> released;

 protected:
  LRESULT Receive(const Message& message) override;
  void Paint(HDC dc, const RECT& area) override;

 private:
  /// Whether the ground has the desktop's own colour.
  bool IsSystems() const;
  COLORREF Colour() const;
  LRESULT ColourOfControl(HDC dc) const;

  std::int32_t ground_ = -1;
  GdiObject<HBRUSH> brush_;
};

}  // namespace lumenote
