// Lays out paragraphs with QTextLayout.
#pragma once
#include "backends/qt/text/CharStyles.h"
#include "backends/qt/text/QtPictures.h"
#include "backends/qt/text/QtPiece.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Creates `QtPiece`s, also of table rows as cells beside each other.
class QtLayouter final : public TextLayouter {
 public:
  CharStyles styles;
  QtPictures pictures;
  /// Formats of the composed text, relative to its start.
  QList<QTextLayout::FormatRange> composedFormats;

  /// From now on gives text for paper: what stands for a box is not among its letters, and links
  /// can be followed.
  void ForPaper();

  FontMetrics MetricsOf(const Document& document, const CharFormat& format) override;

 private:
  std::unique_ptr<Piece> Make(const Document& document, const PieceSpan& wanted) override;
  void Zoomed() override { styles.Zoom(Zoom()); }

  bool forPaper_ = false;
};

}  // namespace lumenote
