#include "view/layout/LineStack.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <functional>

namespace lumenote {

namespace {

constexpr double kLeastWidth = 16;
constexpr double kBulletRoom = 240;  // twips; the minimum
constexpr double kRowRoom = 30;      // twips between the text of a row and the line below it

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t value) {
  constexpr std::uint64_t kGolden = 0x9E3779B97F4A7C15;
  return (hash ^ (value + kGolden + (hash << 6) + (hash >> 2))) * kGolden;
}

}  // namespace

double LineEdges::Room(double left) const { return std::max(right - left, kLeastWidth); }

LineEdges EdgesOf(const TextLayouter& layouter, const ParaFormat& format) {
  LineEdges edges;
  const double first = layouter.Pixels(format.firstIndent);
  const double hanging = layouter.Pixels(format.hangingIndent);
  edges.first = first;
  edges.following = first + hanging;
  edges.right = layouter.Width() - layouter.Pixels(format.rightIndent);
  if (format.bullet) {
    edges.bullet = std::max(first, 0.0);
    edges.first = first + std::max(hanging, layouter.Pixels(kBulletRoom));
  }
  return edges;
}

double FreeRoomBefore(const ParaFormat& format) {
  if (format.alignment == Alignment::Centre) return 0.5;
  const bool toTheLeft = format.rightToLeft && format.alignment == Alignment::Left &&
                         (format.stated & kStatesAlignment);
  return toTheLeft || (!format.rightToLeft && format.alignment == Alignment::Right) ? 1 : 0;
}

std::vector<PixelTab> TabsOf(const TextLayouter& layouter, const TabStops& stops,
                             const LineEdges& edges) {
  std::vector<PixelTab> tabs;
  double last = 0;
  const auto add = [&](double x, TabKind kind) { tabs.push_back({last = x, kind}); };
  for (const TabStop& stop : stops) add(layouter.Pixels(stop.position), stop.kind);
  if (edges.following > last) add(edges.following, TabKind::Left);
  const double step = layouter.Pixels(kDefaultTabStep);
  for (double x = (std::floor(last / step) + 1) * step; x < edges.right; x += step)
    tabs.push_back({x, TabKind::Left});
  std::ranges::stable_sort(tabs, {}, &PixelTab::x);
  return tabs;
}

LineStack::LineStack(const TextLayouter& layouter, const Document& document, Piece& piece)
    : layouter_(layouter),
      piece_(piece),
      format_(document.Formats().paragraphs[piece.format]),
      edges_(EdgesOf(layouter, format_)),
      room_(BorderRoomOf(layouter, document.Formats(), format_)),
      start_(piece.opens ? layouter.Pixels(format_.spaceBefore) + room_.above : 0),
      top_(start_),
      most_(start_) {}

double LineStack::LineHeight(double natural) const {
  switch (format_.lineRule) {
    case LineRule::Single:
      return natural;
    case LineRule::OneAndHalf:
      return natural * 1.5;
    case LineRule::Double:
      return natural * 2;
    case LineRule::AtLeast:
      return std::max(natural, layouter_.Pixels(format_.lineSpacing));
    case LineRule::Exact:
      return std::max(1.0, layouter_.Pixels(format_.lineSpacing));
    case LineRule::Multiple:
      return natural * std::clamp(1.0 * format_.lineSpacing / kSingleLine, 0.1, 100.0);
  }
  return natural;
}

// Extra or missing space of a fixed height goes above the text, that of a multiple below it.
void LineStack::Place(PieceLine& line, double ascent, double descent) {
  const double natural = std::ceil(ascent + descent);
  line.top = std::round(top_);
  line.height = std::max(1.0, std::round(LineHeight(natural)));
  const bool roomAbove =
      format_.lineRule == LineRule::AtLeast || format_.lineRule == LineRule::Exact;
  line.baseline = std::round(line.top + ascent + (roomAbove ? line.height - natural : 0));
  if (line.height < natural) piece_.overlaps = true;
  top_ = line.top + line.height;
  most_ = std::max(most_, top_);
  ++placed_;
}

void LineStack::BeginCell(double left, double right) {
  piece_.cells.push_back({placed_, left, right});
  top_ = start_;
}

void LineStack::Finish(std::u16string_view text) {
  const bool spaced = piece_.closes && format_.spaceAfter > 0;
  if (piece_.closes) most_ += piece_.cells.empty() ? room_.below : layouter_.Pixels(kRowRoom);
  piece_.height = std::round(most_ + (spaced ? layouter_.Pixels(format_.spaceAfter) : 0));
  if (piece_.opens) piece_.bulletX = edges_.bullet;
  for (PieceLine& line : piece_.lines) line.look = LookOf(line, text);
}

// Composed text changes its look without a document change, and a line's content may extend into
// the next one: such lines never compare equal to others.
std::uint64_t LineStack::LookOf(const PieceLine& line, std::u16string_view text) const {
  static std::atomic<std::uint64_t> serial = 0;
  if (piece_.composedLength > 0 || piece_.overlaps) return ++serial;
  const bool opens = piece_.opens && line.start == 0;
  const bool ends = piece_.closes && line.end == std::ssize(text);
  const auto start = static_cast<std::size_t>(line.start);
  std::uint64_t look = std::hash<std::u16string_view>()(
      text.substr(start, static_cast<std::size_t>(line.end) - start));
  look = Mixed(look, piece_.format * std::uint64_t{4} + (opens ? 2 : 0) + (ends ? 1 : 0));
  auto run = std::upper_bound(piece_.runs.begin(), piece_.runs.end(), line.start,
                              [](int at, const PieceRun& one) { return at < one.start; });
  if (run != piece_.runs.begin()) --run;
  for (; run != piece_.runs.end() && run->start < line.end; ++run)
    look = Mixed(Mixed(look, static_cast<std::uint64_t>(std::max(run->start - line.start, 0))),
                 run->format);
  return look;
}

}  // namespace lumenote
