#include "backends/win32/text/UniscribeLayouter.h"

#include <utility>

#include "backends/win32/text/LineMaker.h"
#include "view/layout/InlineBoxes.h"

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

/// What ends cells and their paragraphs shows nothing.
void HideEnds(const RowCells& row, std::u16string& text) {
  for (const CellText& part : row.texts)
    for (int i = part.end - part.units; i < part.end; ++i)
      text[static_cast<std::size_t>(i)] = kShownHidden;
}

}  // namespace

FontMetrics UniscribeLayouter::MetricsOf(const Document& document, const CharFormat& format) {
  const CharStyle& style = styles.Of(document, format);
  return {style.ascent, style.descent, style.raise};
}

ShownText UniscribeLayouter::Show(UniscribePiece& piece, const Document& document,
                                  const PieceSpan& span) {
  ShownText text(document, span.from, span.to,
                 [&](CharId id) -> const CharLook& { return styles.Of(document, id); });
  if (!Open(piece, document, span)) return text;
  text.Insert(piece.composedAt, Composed().text);
  const CharId format = document.CharFormatAt(piece.from + piece.composedAt);
  text.decorations.push_back(ComposedLine(piece, styles.Of(document, format)));
  return text;
}

std::unique_ptr<Piece> UniscribeLayouter::Make(const Document& document, const PieceSpan& wanted) {
  auto piece = std::make_unique<UniscribePiece>();
  const PieceSpan span = SpanOf(document, wanted);
  ShownText text = Show(*piece, document, span);
  const RowCells row = RowCellsOf(*this, document, *piece);
  const auto length = static_cast<int>(text.text.size());
  const std::vector<int> ends = EndsOf(row, length);
  HideEnds(row, text.text);
  const bool rightToLeft = document.Formats().paragraphs[piece->format].rightToLeft;
  ShapedText shaped = Shaper(document, styles, text).Shape(rightToLeft, ends);
  piece->text = std::move(text.text);
  piece->decorations = std::move(text.decorations);
  piece->runs = std::move(text.runs);
  piece->boxes = BoxesIn(*this, document, *piece, row, length);
  LineMaker lines(*this, document, styles, *piece, row, std::move(shaped));
  if (!row.Empty())
    lines.BuildRow(ends);
  else if (!lines.Build(span))
    return nullptr;
  return piece;
}

}  // namespace lumenote
