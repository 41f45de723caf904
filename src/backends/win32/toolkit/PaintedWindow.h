// The base of window classes of our own: they paint themselves, without flicker.
#pragma once
#include <string>

#include "backends/win32/toolkit/Window.h"

namespace lumenote {

/// Its caption and font are those of the native window.
class PaintedWindow : public Window {
 public:
  using Window::Window;

  HFONT Font() const { return font_; }
  void Repaint();

 protected:
  LRESULT Receive(const Message& message) override;
  /// Paints the whole client area, ground included.
  virtual void Paint(HDC dc, const RECT& area) = 0;

  std::u16string Caption() const;
  /// Paints what the parent window shows behind this one, and sets the colour of text on it.
  void PaintGround(HDC dc);
  /// Draws the caption into a box; `format` is as for `DrawTextW`.
  void PaintCaption(HDC dc, RECT box, UINT format) const;

 private:
  void PaintBuffered();

  HFONT font_ = nullptr;
};

}  // namespace lumenote
