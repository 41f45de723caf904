#include "view/layout/TextLayouter.h"

#include <algorithm>
#include <cassert>

namespace lumenote {

void TextLayouter::Zoom(double factor) {
  zoom_ = factor;
  Zoomed();
}

void TextLayouter::Scale(double factor) {
  scale_ = factor;
  Zoomed();
}

double TextLayouter::Pixels(double twips) const {
  return std::clamp(twips, -kMaxTwips, kMaxTwips) / kTwipsPerPixel * zoom_ * scale_;
}

const PictureFrame& TextLayouter::FrameOf(const FormatTables& tables, ItemId item) const {
  const auto [known, isNew] = frames_.try_emplace(item);
  if (isNew) known->second = lumenote::FrameOf(tables.items[item]);
  return known->second;
}

std::unique_ptr<Piece> TextLayouter::LayOut(const Document& document, const PieceSpan& span) {
  auto piece = Make(document, span);
  assert(piece || !span.complete);
  assert(!piece || piece->IsSound(document));
  return piece;
}

bool TextLayouter::Open(Piece& piece, const Document& document, const PieceSpan& span) const {
  const Position paragraph = document.ParagraphOf(span.from);
  piece.from = span.from;
  piece.to = span.to;
  piece.opens = document.ParagraphStart(paragraph) == span.from;
  piece.closes = span.complete && span.to == document.ParagraphEnd(document.ParagraphOf(span.to));
  piece.format = document.ParaFormatAt(span.from);
  if (composed_.text.empty() || composed_.at < span.from || composed_.at > span.to) return false;
  piece.composedAt = composed_.at - span.from;
  piece.composedLength = static_cast<int>(composed_.text.size());
  piece.composedCaret = composed_.caret;
  return true;
}

}  // namespace lumenote
