// Draws decorations with GDI.
#pragma once
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "view/layout/Strokes.h"

namespace lumenote {

class GdiPencil final : public Pencil {
 public:
  /// `ink` is the automatic colour; `plain` draws everything in it.
  GdiPencil(HDC dc, COLORREF ink, bool plain) : dc_(dc), ink_(ink), plain_(plain) {}

  void Line(PixelPoint from, PixelPoint to, const Stroke& stroke, double width,
            Colour ink) override;

 private:
  void Dash(PixelPoint from, double right, const Stroke& stroke, double width, COLORREF ink) const;
  void Wave(PixelPoint from, double right) const;

  HDC dc_;
  COLORREF ink_;
  bool plain_;
};

/// Fills the whole pixels of a rectangle.
void Fill(HDC dc, const PixelRect& rect, COLORREF colour);

}  // namespace lumenote
