#include "backends/headless/FixedLayouter.h"

#include <algorithm>
#include <cmath>

#include "base/Strings.h"
#include "document/tables/TableRow.h"
#include "view/layout/InlineBoxes.h"
#include "view/layout/LineStack.h"

namespace lumenote {

namespace {

constexpr double kAdvance = 5;  // twips per half-point of the size
constexpr double kAscent = 9.6;
constexpr double kDescent = 2.4;
constexpr double kTolerance = 1e-6;  // pixels
constexpr char16_t kLineBreak = u'\v';

bool AllowsBreakBehind(char16_t c) {
  return std::u16string_view(u" \t-\u2010\u2013\u2014").find(c) != std::u16string_view::npos;
}

/// One unit of the text.
struct Glyph {
  char16_t unit;
  double advance;  // pixels; 0 for the second half of a surrogate pair
  double ascent;
  double descent;

  /// Turns a unit that ends a paragraph or cell in a table into nothing seen.
  void Hide() { unit = 0, advance = 0; }
};

class FixedPiece final : public Piece {
 public:
  std::vector<Glyph> glyphs;
  std::vector<double> lefts;   // of the lines
  std::vector<double> rights;  // of the units, within their line

  double CaretX(int line, int index) const override {
    const auto at = static_cast<std::size_t>(line);
    return index <= lines[at].start ? lefts[at] : rights[static_cast<std::size_t>(index) - 1];
  }

 protected:
  int CaretAt(int line, double x) const override {
    const PieceLine& box = lines[static_cast<std::size_t>(line)];
    for (int i = box.start; i < box.end; ++i) {
      const double left = CaretX(line, i);
      const double right = CaretX(line, i + 1);
      if (right > left && x < (left + right) / 2) return i;
    }
    return box.end;
  }
  int UnitAt(int line, double x) const override {
    const PieceLine& box = lines[static_cast<std::size_t>(line)];
    if (x < CaretX(line, box.start)) return -1;
    for (int i = box.start; i < box.end; ++i)
      if (x < CaretX(line, i + 1)) return i;
    return -1;
  }
  int CaretBefore(int index) const override {
    return index - (IsLowSurrogate(glyphs[static_cast<std::size_t>(index) - 1].unit) ? 2 : 1);
  }
};

/// Fills a piece.
class PieceBuilder {
 public:
  PieceBuilder(const FixedLayouter& layouter, const Document& document, FixedPiece& piece)
      : layouter_(layouter),
        document_(document),
        piece_(piece),
        tabStep_(layouter.Pixels(kDefaultTabStep)) {}

  /// Returns false if an incomplete span gave no whole line.
  bool BuildLines(const PieceSpan& span);
  /// Lays out a whole row of cells.
  void BuildRow();

 private:
  Glyph GlyphOf(char16_t unit, CharId format) const;
  void AddText(Position from, Position to);
  void AddComposed();
  void AddBoxes(const RowCells& row);
  double Behind(int index, double x) const;
  int LineEnd(int start, int limit, double left, double room) const;
  void AddLine(int start, int end, double left);
  void HideEnds(const RowCells& row);
  void PlaceFrom(LineStack& stack, std::size_t line);
  void Place(LineStack& stack, PieceLine& line);
  bool EndsWithLineBreak() const {
    return !piece_.glyphs.empty() && piece_.glyphs.back().unit == kLineBreak;
  }
  std::u16string Text() const;

  const FixedLayouter& layouter_;
  const Document& document_;
  FixedPiece& piece_;
  const double tabStep_;
};

Glyph PieceBuilder::GlyphOf(char16_t unit, CharId format) const {
  const double size = document_.Formats().characters[format].size;
  const double advance = IsLowSurrogate(unit) ? 0 : layouter_.Pixels(size * kAdvance);
  return {unit, advance, layouter_.Pixels(size * kAscent), layouter_.Pixels(size * kDescent)};
}

void PieceBuilder::AddText(Position from, Position to) {
  document_.ForEachRun(from, to, [&](Position, TextView text, CharId format) {
    const int start = static_cast<int>(piece_.glyphs.size());
    if (piece_.runs.empty() || piece_.runs.back().format != format)
      piece_.runs.push_back({start, format});
    for (const char16_t c : text.String()) piece_.glyphs.push_back(GlyphOf(c, format));
  });
  if (piece_.composedLength > 0) AddComposed();
}

void PieceBuilder::AddBoxes(const RowCells& row) {
  const int count = static_cast<int>(piece_.glyphs.size());
  piece_.boxes = BoxesIn(layouter_, document_, piece_, row, count);
  for (const InlineBox& box : piece_.boxes) {
    Glyph& glyph = piece_.glyphs[static_cast<std::size_t>(box.index)];
    glyph.advance = box.size.width;
    glyph.ascent = std::max(glyph.ascent, box.size.height);
  }
}

// Composed text takes the format of the character at its position.
void PieceBuilder::AddComposed() {
  const CharId format = document_.CharFormatAt(piece_.from + piece_.composedAt);
  std::vector<Glyph> glyphs;
  for (const char16_t c : layouter_.Composed().text) glyphs.push_back(GlyphOf(c, format));
  piece_.glyphs.insert(piece_.glyphs.begin() + piece_.composedAt, glyphs.begin(), glyphs.end());
  for (PieceRun& run : piece_.runs)
    if (run.start > piece_.composedAt) run.start += piece_.composedLength;
}

double PieceBuilder::Behind(int index, double x) const {
  const Glyph& glyph = piece_.glyphs[static_cast<std::size_t>(index)];
  if (glyph.unit != u'\t') return x + glyph.advance;
  return (std::floor(x / tabStep_ + kTolerance) + 1) * tabStep_;
}

// End of the line that starts at `start`; `limit` if everything fits.
int PieceBuilder::LineEnd(int start, int limit, double left, double room) const {
  int breakAt = start;
  double x = left;
  for (int i = start; i < limit; ++i) {
    const Glyph& glyph = piece_.glyphs[static_cast<std::size_t>(i)];
    if (glyph.unit == kLineBreak) return i + 1;
    const double behind = Behind(i, x);
    const bool mayStay = glyph.unit == u' ' || glyph.advance == 0 || i == start;
    if (behind > left + room + kTolerance && !mayStay) return breakAt > start ? breakAt : i;
    x = behind;
    if (AllowsBreakBehind(glyph.unit)) breakAt = i + 1;
  }
  return limit;
}

void PieceBuilder::AddLine(int start, int end, double left) {
  piece_.lines.push_back({.start = start, .end = end});
  piece_.lefts.push_back(left);
  for (int i = start; i < end; ++i) piece_.rights.push_back(left = Behind(i, left));
}

void PieceBuilder::PlaceFrom(LineStack& stack, std::size_t line) {
  for (; line < piece_.lines.size(); ++line) Place(stack, piece_.lines[line]);
}

void PieceBuilder::Place(LineStack& stack, PieceLine& line) {
  const Position at = piece_.ToPosition(line.start);
  const Glyph none = GlyphOf(0, document_.CharFormatAt(at));
  double ascent = line.start == line.end ? none.ascent : 0;
  double descent = line.start == line.end ? none.descent : 0;
  for (int i = line.start; i < line.end; ++i) {
    ascent = std::max(ascent, piece_.glyphs[static_cast<std::size_t>(i)].ascent);
    descent = std::max(descent, piece_.glyphs[static_cast<std::size_t>(i)].descent);
  }
  stack.Place(line, ascent, descent);
}

std::u16string PieceBuilder::Text() const {
  std::u16string text;
  for (const Glyph& glyph : piece_.glyphs) text += glyph.unit;
  return text;
}

bool PieceBuilder::BuildLines(const PieceSpan& span) {
  AddText(span.from, span.to);
  const RowCells none;
  LineStack stack(layouter_, document_, piece_, none);
  const int count = static_cast<int>(piece_.glyphs.size());
  AddBoxes(none);
  const int known = span.nextKnown < 0 ? count : piece_.ToIndex(span.nextKnown);
  for (int start = 0, end = -1; end != count && end != known; start = end) {
    const double left = stack.Edges().Left(piece_.opens && start == 0);
    end = LineEnd(start, count, left, stack.Edges().Room(left));
    if (end == count && !span.complete) break;
    AddLine(start, end, left);
  }
  if (piece_.lines.empty()) return false;
  piece_.to = piece_.ToPosition(piece_.lines.back().end);
  piece_.closes = piece_.closes && piece_.to == span.to;
  if (piece_.closes && EndsWithLineBreak()) AddLine(count, count, stack.Edges().following);
  PlaceFrom(stack, 0);
  stack.Finish(Text());
  return true;
}

void PieceBuilder::BuildRow() {
  const RowCells row = RowCellsOf(layouter_, document_, piece_);
  AddText(piece_.from, piece_.to);
  LineStack stack(layouter_, document_, piece_, row);
  AddBoxes(row);
  HideEnds(row);
  const std::vector<int> ends = EndsOf(row, static_cast<int>(piece_.glyphs.size()));
  int start = 0;
  for (std::size_t i = 0; i < ends.size(); ++i) {
    const std::size_t line = piece_.lines.size();
    stack.Begin(row.texts[i]);
    for (int from = start, end = -1; end != ends[i]; from = end) {
      const double left = stack.Edges().Left(from == start);
      const double room = stack.Edges().Room(left);
      end = LineEnd(from, ends[i], stack.Left() + left, room);
      AddLine(from, end, stack.Left() + left);
    }
    start = ends[i];
    if (i + 1 == ends.size() && EndsWithLineBreak())
      AddLine(start, start, stack.Left() + stack.Edges().following);
    PlaceFrom(stack, line);
  }
  stack.Finish(Text());
}

void PieceBuilder::HideEnds(const RowCells& row) {
  for (const CellText& text : row.texts)
    for (int i = text.end - text.units; i < text.end; ++i)
      piece_.glyphs[static_cast<std::size_t>(i)].Hide();
}

}  // namespace

FontMetrics FixedLayouter::MetricsOf(const Document&, const CharFormat& format) {
  return {Pixels(format.size * kAscent), Pixels(format.size * kDescent), 0};
}

std::unique_ptr<Piece> FixedLayouter::Make(const Document& document, const PieceSpan& span) {
  auto piece = std::make_unique<FixedPiece>();
  if (RowAround(document, span.from)) {
    Open(*piece, document, SpanOf(document, span));
    PieceBuilder(*this, document, *piece).BuildRow();
    return piece;
  }
  Open(*piece, document, span);
  if (!PieceBuilder(*this, document, *piece).BuildLines(span)) return nullptr;
  return piece;
}

}  // namespace lumenote
