#include "view/pane/TextPane.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

namespace lumenote {

namespace {

const PieceLine& LineOf(const Piece& piece, Position position) {
  return piece.lines[static_cast<std::size_t>(piece.LineOf(position))];
}

}  // namespace

double TextPane::WrapWidth() const {
  const double margin = surface_.RightMargin();
  return margin > 0 ? layouter_.Pixels(margin) : size_.width - 2 * margin_;
}

double TextPane::TextWidth() const { return layouter_.Width() * layouter_.TwipsPerPixel(); }

void TextPane::Resize(PixelSize size) {
  size_ = size;
  scroll_.PaneHeight(size.height);
  if (WrapWidth() != layouter_.Width()) Rewrap();
  scrolledRight_ = std::min(scrolledRight_, MostRight());
}

void TextPane::Rewrap() {
  layouter_.Width(WrapWidth());
  cache_.Clear();
  scroll_.Relaid();
  surface_.Lines().Reset();
}

void TextPane::Zoom(double factor) {
  layouter_.Zoom(factor);
  Rewrap();
}

void TextPane::Compose(Composition text) {
  for (const Position at : {layouter_.Composed().at, text.at})
    if (at >= 0) cache_.Changed({at, 0, 0});
  layouter_.Composed(std::move(text));
}

double TextPane::MostRight() const {
  return std::max(0.0, std::ceil(WrapWidth() + 2 * margin_ - size_.width));
}

TextPane::LineHit TextPane::LineNear(PixelPoint point) {
  const std::vector<ShownPiece> shown = Visible();
  const auto below = std::find_if(shown.begin(), shown.end(), [&](const ShownPiece& item) {
    return point.y < item.y + item.piece->height;
  });
  const ShownPiece& item = below == shown.end() ? shown.back() : *below;
  return {item.piece, item.piece->LineAt(point.y - item.y, point.x - TextLeft())};
}

Position TextPane::PositionAt(PixelPoint point) {
  const LineHit hit = LineNear(point);
  return Content().SnapBackward(hit.piece->PositionAt(hit.line, point.x - TextLeft()));
}

Position TextPane::CharacterAt(PixelPoint point) {
  const LineHit hit = LineNear(point);
  return hit.piece->CharacterAt(hit.line, point.x - TextLeft());
}

Line TextPane::ShownLine(Position position) {
  const Piece& piece = cache_.At(std::clamp(position, 0, Content().Length()));
  int first = piece.LineOf(std::min(position, piece.to));
  int last = first;
  while (!piece.BeginsLine(Content(), first)) --first;
  while (last + 1 < std::ssize(piece.lines) && !piece.BeginsLine(Content(), last + 1)) ++last;
  const Line shown = LineIn(piece, first, last);
  assert(AgreesWithLineTable(piece, shown));
  return shown;
}

Line TextPane::LineIn(const Piece& piece, int first, int last) const {
  const Position start = piece.LineStart(first);
  const bool ends = last + 1 == std::ssize(piece.lines);
  const Position behind = piece.to < Content().Length() ? piece.to + 2 : -1;
  if (ends && piece.closes) return {start, piece.to, behind};
  const Position next = ends ? piece.to : piece.LineStart(last + 1);
  switch (Content().At(next - 1)) {
    case u'\v':
      return {start, next - 1, next};
    case u'\n':
      return {start, next - 2, next};
    default:
      return {start, next, next};
  }
}

Selection TextPane::CellLine(Position position) {
  const Piece& piece = cache_.At(std::clamp(position, 0, Content().Length()));
  if (piece.cells.empty()) {
    const Line line = ShownLine(position);
    return {line.start, line.next < 0 ? line.end : line.next};
  }
  const int line = piece.LineOf(std::min(position, piece.to));
  const bool last = line + 1 == std::ssize(piece.lines);
  return {piece.LineStart(line),
          last ? std::min(piece.to + 2, Content().Length()) : piece.LineStart(line + 1)};
}

// The contract with the line table: they agree in every paragraph that is one piece.
bool TextPane::AgreesWithLineTable(const Piece& piece, const Line& line) {
  const bool whole = piece.opens && piece.closes && piece.composedLength == 0;
  return !whole || surface_.Lines().LineAt(line.start) == line;
}

std::optional<PixelRect> TextPane::LineAt(Position position) {
  const std::optional<double> y = scroll_.YNear(position);
  if (!y) return std::nullopt;
  const Piece& piece = cache_.At(position);
  const PieceLine& line = LineOf(piece, position);
  const double top = *y + line.top;
  return PixelRect{0, top, size_.width, top + line.height};
}

std::optional<PixelRect> TextPane::CaretAt(Position position) {
  const std::optional<double> top = scroll_.YNear(position);
  if (!top) return std::nullopt;
  const Piece& piece = cache_.At(position);
  return CaretIn(piece, *top, piece.ToIndex(position));
}

std::optional<PixelRect> TextPane::ComposedCaretAt(int unit) {
  const Position at = layouter_.Composed().at;
  const std::optional<double> top = at < 0 ? std::nullopt : scroll_.YNear(at);
  if (!top) return std::nullopt;
  const Piece& piece = cache_.At(at);
  return CaretIn(piece, *top, piece.composedAt + std::clamp(unit, 0, piece.composedLength));
}

PixelRect TextPane::CaretIn(const Piece& piece, double top, int index) {
  const int line = piece.LineOfIndex(index);
  const FontMetrics font = layouter_.MetricsOf(Content(), surface_.InsertionFormat());
  const double baseline = top + piece.lines[static_cast<std::size_t>(line)].baseline;
  const double left = std::round(TextLeft() + piece.CaretX(line, index));
  const double upper = std::round(baseline - font.raise - font.ascent);
  return {left, upper, left + kCaretWidth, upper + std::ceil(font.ascent + font.descent)};
}

void TextPane::Reveal(Position position) {
  scroll_.Reveal(position);
  RevealAcross(position);
}

void TextPane::RevealAcross(Position position) {
  const double most = MostRight();
  if (most == 0) return;
  const std::optional<PixelRect> caret = CaretAt(position);
  if (!caret) return;
  const double room = size_.width / 8;
  if (caret->left < margin_) scrolledRight_ += caret->left - room;
  if (caret->right > size_.width - margin_) scrolledRight_ += caret->right - size_.width + room;
  scrolledRight_ = std::clamp(std::round(scrolledRight_), 0.0, most);
}

int TextPane::LinesPerPage() {
  const Position caret = surface_.Caret();
  const double x = cache_.At(caret).XOf(caret);
  std::ptrdiff_t lines = 0;
  for (const ShownPiece& item : Visible())
    lines += std::ranges::count_if(item.piece->LinesAt(x), [&](const PieceLine& line) {
      const double top = item.y + line.top;
      return top >= 0 && top + line.height <= size_.height;
    });
  return static_cast<int>(std::max<std::ptrdiff_t>(1, lines - 1));
}

}  // namespace lumenote
