#include "backends/win32/text/LineMaker.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "view/layout/InlineBoxes.h"
#include "view/layout/ShownText.h"

namespace lumenote {

namespace {

constexpr double kTolerance = 1e-6;  // pixels

int Rounded(double pixels) { return static_cast<int>(std::lround(pixels)); }

}  // namespace

LineMaker::LineMaker(const TextLayouter& layouter, const Document& document, CharStyles& styles,
                     UniscribePiece& piece, const RowCells& row, ShapedText shaped)
    : layouter_(layouter),
      document_(document),
      styles_(styles),
      piece_(piece),
      row_(row),
      stack_(layouter, document, piece, row),
      units_(std::move(shaped.units)),
      tabStep_(layouter.Pixels(kDefaultTabStep)) {
  FindTabs();
  piece_.glyphs = std::move(shaped.runs);
  piece_.units.resize(units_.size());
  column_ = {.end = static_cast<int>(units_.size()), .edges = stack_.Edges()};
  for (const InlineBox& box : piece_.boxes) Unit(box.index).width = Rounded(box.size.width);
}

void LineMaker::FindTabs() {
  const TabStops& stops = document_.Formats().tabs[stack_.Format().tabs];
  tabs_ = TabsOf(layouter_, stops, stack_.Edges());
  for (PixelTab& tab : tabs_) tab.x = std::round(tab.x);  // as the text before it ends
}

// --- breaking

// The end of the line that starts at `start`; the column's if everything fits.
// Blanks may hang.
int LineMaker::LineEnd(int start) {
  const double left = LeftEdge(start);
  const double right = left + column_.edges.Room(left);
  int breakAt = start;
  double x = left;
  for (int i = start; i < column_.end; ++i) {
    ShapedUnit& unit = Unit(i);
    if (i > start && unit.breakBefore) breakAt = i;
    if (UnitAt(i) == kShownLineBreak) return i + 1;
    if (UnitAt(i) == u'\t') unit.width = TabWidth(i, x);
    x += unit.width;
    const bool mayStay = UnitAt(i) == u' ' || unit.width == 0 || i == start;
    if (x > right + kTolerance && !mayStay) return breakAt > start ? breakAt : i;
  }
  return column_.end;
}

int LineMaker::TabWidth(int tab, double x) const {
  const auto isBehind = [&](const PixelTab& stop) {
    return stop.x > x + kTolerance && stop.kind != TabKind::Bar;
  };
  const auto stop = std::ranges::find_if(tabs_, isBehind);
  if (stop != tabs_.end()) return std::max(0, Rounded(stop->x - TabRoom(tab, stop->kind) - x));
  double next = std::floor(x / tabStep_) * tabStep_;
  while (Rounded(next) <= x + kTolerance) next += tabStep_;
  return Rounded(next - x);
}

/// How much of the text behind a tab stands before the tab's stop.
double LineMaker::TabRoom(int tab, TabKind kind) const {
  if (kind == TabKind::Left || kind == TabKind::Bar) return 0;
  double width = 0;
  for (int i = tab + 1; i < column_.end; ++i) {
    const char16_t unit = UnitAt(i);
    if (unit == u'\t' || unit == kShownLineBreak) break;
    if (kind == TabKind::Decimal && unit == u',') break;
    width += Unit(i).width;
  }
  return kind == TabKind::Centre ? width / 2 : width;
}

// Adds the column's lines from one start to its end, or to another start that is `known`.
void LineMaker::AddLines(int start, int known, bool omitLast) {
  for (int end = -1; end != column_.end && end != known; start = end) {
    end = LineEnd(start);
    if (end == column_.end && omitLast) return;
    piece_.lines.push_back({.start = start, .end = end});
  }
}

void LineMaker::EndWithLineBreak() {
  const int count = static_cast<int>(units_.size());
  if (count > 0 && UnitAt(count - 1) == kShownLineBreak)
    piece_.lines.push_back({.start = count, .end = count});
}

bool LineMaker::Build(const PieceSpan& span) {
  AddLines(0, span.nextKnown < 0 ? column_.end : piece_.ToIndex(span.nextKnown), !span.complete);
  if (piece_.lines.empty()) return false;
  piece_.to = piece_.ToPosition(piece_.lines.back().end);
  piece_.closes = piece_.closes && piece_.to == span.to;
  if (piece_.closes) EndWithLineBreak();
  for (PieceLine& line : piece_.lines) PlaceLine(line);
  stack_.Finish(piece_.text);
  return true;
}

void LineMaker::BuildRow(const std::vector<int>& ends) {
  int start = 0;
  for (std::size_t i = 0; i < ends.size(); start = ends[i++])
    AddText(row_.texts[i], start, ends[i]);
  stack_.Finish(piece_.text);
}

void LineMaker::AddText(const CellText& text, int start, int end) {
  stack_.Begin(text);
  FindTabs();
  column_ = {.start = start, .end = end, .edges = stack_.Edges(), .left = stack_.Left()};
  const std::size_t first = piece_.lines.size();
  AddLines(start, end, false);
  if (end == std::ssize(units_)) EndWithLineBreak();
  for (std::size_t i = first; i < piece_.lines.size(); ++i) PlaceLine(piece_.lines[i]);
}

// --- placing

LineMaker::Extent LineMaker::Measure(int start, int end) const {
  Extent extent;
  const int hangs = FirstHanging(piece_.text, start, end);
  for (int i = start; i < end; ++i) (i < hangs ? extent.width : extent.hanging) += Unit(i).width;
  return extent;
}

// Room is added to the blanks behind the last tab.
void LineMaker::Justify(int start, int end) {
  int first = end;
  while (first > start && UnitAt(first - 1) != u'\t') --first;
  const int last = FirstHanging(piece_.text, first, end);
  int blanks = 0;
  for (int i = first; i < last; ++i) blanks += UnitAt(i) == u' ' ? 1 : 0;
  const double room = column_.edges.Room(LeftEdge(start));
  int extra = static_cast<int>(room) - Measure(start, end).width;
  auto run = std::ranges::upper_bound(piece_.glyphs, first, {}, &GlyphRun::end);
  for (int i = first; i < last && extra > 0; ++i) {
    if (UnitAt(i) != u' ') continue;
    while (run->end <= i) ++run;
    const int share = extra / blanks--;
    extra -= share;
    Unit(i).width += share;
    run->advances[run->clusters[static_cast<std::size_t>(i - run->start)]] += share;
  }
}

// In a paragraph from right to left the edges are mirrored, and what hangs does
// so on the left.
int LineMaker::LeftOf(const PieceLine& line, const Extent& extent) const {
  const ParaFormat& format = stack_.Format();
  const double edge = LeftEdge(line.start);
  const double room = column_.edges.Room(edge);
  const double rest = std::max(0.0, room - extent.width);
  const double shift = rest * FreeRoomBefore(format);
  const double left = format.rightToLeft
                          ? column_.edges.right - edge - shift - extent.width - extent.hanging
                          : edge + shift;
  return Rounded(column_.left + left);
}

std::vector<LinePart> LineMaker::PartsOf(int start, int end) const {
  std::vector<LinePart> parts;
  const auto& runs = piece_.glyphs;
  auto run = std::ranges::upper_bound(runs, start, {}, &GlyphRun::end);
  const int hangs = FirstHanging(piece_.text, start, end);
  for (; run != runs.end() && run->start < end; ++run) {
    const int from = std::max(start, run->start);
    const int to = std::min(end, run->end);
    const int middle = std::clamp(hangs, from, to);
    const auto index = static_cast<std::size_t>(run - runs.begin());
    for (const auto& [first, last] : {std::pair(from, middle), std::pair(middle, to)}) {
      if (first == last) continue;
      LinePart part{.run = index, .start = first, .end = last};
      for (int i = first; i < last; ++i) part.width += Unit(i).width;
      parts.push_back(part);
    }
  }
  return parts;
}

// Blanks at the end of a line have the direction of the paragraph.
void LineMaker::PlaceParts(std::vector<LinePart>& parts, int left, int hangFrom) const {
  std::vector<BYTE> levels;
  for (const LinePart& part : parts) {
    const BYTE base = stack_.Format().rightToLeft ? 1 : 0;
    levels.push_back(part.start >= hangFrom
                         ? base
                         : static_cast<BYTE>(piece_.glyphs[part.run].analysis.s.uBidiLevel));
  }
  std::vector<int> order(parts.size());
  ScriptLayout(static_cast<int>(parts.size()), levels.data(), order.data(), nullptr);
  std::vector<LinePart> placed;
  for (const int number : order) {
    placed.push_back(parts[static_cast<std::size_t>(number)]);
    placed.back().x = left;
    left += placed.back().width;
  }
  parts = std::move(placed);
}

void LineMaker::PlaceUnits(const LinePart& part) {
  const bool rightToLeft = piece_.glyphs[part.run].IsRightToLeft();
  int x = rightToLeft ? part.x + part.width : part.x;
  for (int i = part.start; i < part.end; ++i) {
    UniscribePiece::Unit& unit = piece_.units[static_cast<std::size_t>(i)];
    unit.stop = Unit(i).stop;
    unit.before = x;
    x += rightToLeft ? -Unit(i).width : Unit(i).width;
    unit.behind = x;
  }
}

bool LineMaker::IsJustified(const PieceLine& line) const {
  return stack_.Format().alignment == Alignment::Justify && line.end > line.start &&
         !(piece_.closes && line.end == column_.end) && UnitAt(line.end - 1) != kShownLineBreak;
}

void LineMaker::PlaceLine(PieceLine& line) {
  if (IsJustified(line)) Justify(line.start, line.end);
  const int left = LeftOf(line, Measure(line.start, line.end));
  std::vector<LinePart> parts = PartsOf(line.start, line.end);
  if (!parts.empty()) PlaceParts(parts, left, FirstHanging(piece_.text, line.start, line.end));
  for (const LinePart& part : parts) PlaceUnits(part);
  piece_.lefts.push_back(left);
  piece_.parts.push_back(std::move(parts));
  Stack(line);
}

// A line without anything to see is as high as the text that would begin it.
void LineMaker::Stack(PieceLine& line) {
  double ascent = 0;
  double descent = 0;
  for (const LinePart& part : piece_.parts.back()) {
    const GlyphRun& run = piece_.glyphs[part.run];
    const CharStyle& style = styles_.Of(document_, run.format);
    if (!run.font && style.hidden) continue;
    ascent = std::max(ascent, (run.font ? run.font->Ascent() : style.ascent) + style.raise);
    descent = std::max(descent, (run.font ? run.font->Descent() : style.descent) - style.raise);
  }
  if (ascent + descent == 0) {
    const Position at = piece_.ToPosition(line.start);
    const CharStyle& style = styles_.Of(document_, document_.CharFormatAt(at));
    ascent = style.ascent;
    descent = style.descent;
  }
  Extend(piece_.boxes, line, ascent);
  Extend(piece_.decorations, line, ascent, descent);
  stack_.Place(line, ascent, descent);
}

}  // namespace lumenote
