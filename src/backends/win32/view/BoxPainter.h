// Paints the boxes in a text: pictures, and what stands for those that cannot be shown.
#pragma once
#include "backends/win32/text/GdiPictures.h"
#include "view/layout/Piece.h"

namespace lumenote {

struct BoxColours {
  COLORREF ink = 0;
  COLORREF tint = 0;  // over what is selected
};

class BoxPainter {
 public:
  /// All must outlive the painter.
  BoxPainter(HDC dc, const Document& document, GdiPictures& pictures, const BoxColours& colours)
      : dc_(dc), document_(document), pictures_(pictures), colours_(colours) {}

  /// `place` is where the box stands, in whole pixels; `selected` tints it.
  void Paint(const InlineBox& box, const PixelRect& place, bool selected);

 private:
  bool PaintImage(ItemId item, const Gdiplus::Rect& place);
  void PaintLabel(ItemId item, const PixelRect& place);

  HDC dc_;
  const Document& document_;
  GdiPictures& pictures_;
  const BoxColours& colours_;
};

}  // namespace lumenote
