// Lays out paragraphs with Uniscribe and the fonts of GDI.
#pragma once
#include "backends/win32/text/CharStyles.h"
#include "backends/win32/text/GdiPictures.h"
#include "backends/win32/text/UniscribePiece.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Creates `UniscribePiece`s, also of table rows as cells beside each other. Needs no window;
/// measures in whole pixels of the device.
class UniscribeLayouter final : public TextLayouter {
 public:
  CharStyles styles;
  GdiPictures pictures;

  FontMetrics MetricsOf(const Document& document, const CharFormat& format) override;

 private:
  std::unique_ptr<Piece> Make(const Document& document, const PieceSpan& span) override;
  ShownText Show(UniscribePiece& piece, const Document& document, const PieceSpan& span);
  void Zoomed() override { styles.Zoom(Zoom() * Scale()); }
};

}  // namespace lumenote
