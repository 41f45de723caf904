#include "backends/win32/text/UniscribeLayouter.h"

#include <utility>

#include "backends/win32/text/LineMaker.h"

namespace lumenote {

namespace {

/// How text being composed is told from the rest.
Decoration ComposedLine(const Piece& piece, const CharStyle& style) {
  return {.start = piece.composedAt,
          .end = piece.composedAt + piece.composedLength,
          .underline = Underline::Dotted,
          .ascent = style.ascent,
          .descent = style.descent};
}

}  // namespace

FontMetrics UniscribeLayouter::MetricsOf(const Document& document, const CharFormat& format) {
  const CharStyle& style = styles.Of(document, format);
  return {style.ascent, style.descent, style.raise};
}

std::unique_ptr<Piece> UniscribeLayouter::Make(const Document& document, const PieceSpan& span) {
  auto piece = std::make_unique<UniscribePiece>();
  ShownText text(document, span.from, span.to,
                 [&](CharId id) -> const CharLook& { return styles.Of(document, id); });
  if (Open(*piece, document, span)) {
    text.Insert(piece->composedAt, Composed().text);
    const CharId format = document.CharFormatAt(piece->from + piece->composedAt);
    text.decorations.push_back(ComposedLine(*piece, styles.Of(document, format)));
  }
  ShapedText shaped = Shaper(document, styles, text)
                          .Shape(document.Formats().paragraphs[piece->format].rightToLeft);
  piece->text = std::move(text.text);
  piece->decorations = std::move(text.decorations);
  piece->runs = std::move(text.runs);
  if (!LineMaker(*this, document, styles, *piece, std::move(shaped)).Build(span)) return nullptr;
  return piece;
}

}  // namespace lumenote
