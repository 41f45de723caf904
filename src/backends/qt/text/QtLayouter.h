// Lays out paragraphs through the toolkit's text layout.
#pragma once
#include "backends/qt/text/CharStyles.h"
#include "backends/qt/text/QtPiece.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Its pieces are `QtPiece`s.
class QtLayouter final : public TextLayouter {
 public:
  CharStyles styles;
  /// How the text being composed looks, from its start.
  QList<QTextLayout::FormatRange> composedFormats;

  std::unique_ptr<Piece> LayOut(const Document& document, const PieceSpan& span) override;
  FontExtent ExtentOf(const Document& document, const CharFormat& format) override;

 private:
  void Zoomed() override { styles.Zoom(Zoom()); }
};

}  // namespace lumenote
