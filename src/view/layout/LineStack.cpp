#include "view/layout/LineStack.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <functional>
#include <utility>

namespace lumenote {

namespace {

constexpr double kBulletRoom = 240;  // twips; the minimum
constexpr double kFar = 1e9;
constexpr double kRowRoom = 30;  // twips between the text of a row and the line below it

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t value) {
  constexpr std::uint64_t kGolden = 0x9E3779B97F4A7C15;
  return (hash ^ (value + kGolden + (hash << 6) + (hash >> 2))) * kGolden;
}

}  // namespace

namespace {

/// Beside a text of that width, up to `overhang` pixels.
LineEdges EdgesWithin(const TextLayouter& layouter, const FormatTables& tables,
                      const ParaFormat& format, double width, double overhang) {
  LineEdges edges;
  edges.room = BorderRoomOf(layouter, tables, format);
  const double hanging = layouter.Pixels(format.hangingIndent);
  const double stated = layouter.Pixels(format.firstIndent);
  const double least = edges.room.left > 0 ? edges.room.left - overhang : -kFar;
  const double first = stated + std::max(0.0, least - std::min(stated, stated + hanging));
  const double most = edges.room.right > 0 ? width + overhang - edges.room.right : kFar;
  edges.first = first;
  edges.following = first + hanging;
  edges.right = std::min(width - layouter.Pixels(format.rightIndent), most);
  if (format.bullet) {
    edges.bullet = std::max(first, 0.0);
    edges.first = first + std::max(hanging, layouter.Pixels(kBulletRoom));
  }
  return edges;
}

void SetBox(LineEdges& edges, double width, double overhang) {
  const double left = std::min(edges.first, edges.following) - edges.room.left;
  edges.boxLeft = std::round(std::max(left, -overhang));
  edges.boxRight = std::round(std::min(edges.right + edges.room.right, width + overhang));
}

}  // namespace

LineEdges EdgesOf(const TextLayouter& layouter, const FormatTables& tables,
                  const ParaFormat& format) {
  constexpr double kOverhang = 2;  // borders beside the text stay in the pane
  LineEdges edges = EdgesWithin(layouter, tables, format, layouter.Width(), kOverhang);
  SetBox(edges, layouter.Width(), kOverhang);
  return edges;
}

LineEdges EdgesIn(const TextLayouter& layouter, const FormatTables& tables,
                  const ParaFormat& format, const CellBox& cell) {
  const double overhang = std::max(0.0, std::floor(cell.padding) - 1);  // the rest is the row's
  LineEdges edges = EdgesWithin(layouter, tables, format, cell.Room(), overhang);
  edges.least = std::min(LineEdges::kLeastRoom, cell.Room());
  edges.right = std::clamp(edges.right, edges.least, cell.Room());
  for (double* left : {&edges.first, &edges.following})
    *left = std::clamp(*left, 0.0, edges.right - edges.least);
  edges.bullet = std::min(edges.bullet, edges.first);
  SetBox(edges, cell.Room(), overhang);
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

LineStack::LineStack(const TextLayouter& layouter, const Document& document, Piece& piece,
                     const RowCells& row)
    : layouter_(layouter),
      tables_(document.Formats()),
      piece_(piece),
      row_(row),
      format_(&tables_.paragraphs[piece.format]),
      edges_(EdgesOf(layouter, tables_, *format_)),
      top_(piece.opens ? layouter.Pixels(format_->spaceBefore) + edges_.room.above : 0),
      cells_(row.cells.size()),
      rows_(row.rows.size()) {
  piece.rows = row.rows;
  for (const CellBox& cell : row.cells)
    piece.cells.push_back(
        {.left = cell.left, .right = cell.right, .row = cell.row, .parent = cell.parent});
  if (row.Empty() && piece.opens) AddBullet();
}

void LineStack::AddBullet() {
  if (edges_.bullet >= 0) piece_.bullets.push_back({placed_, left_ + edges_.bullet});
}

double LineStack::LineHeight(double natural) const {
  switch (format_->lineRule) {
    case LineRule::Single:
      return natural;
    case LineRule::OneAndHalf:
      return natural * 1.5;
    case LineRule::Double:
      return natural * 2;
    case LineRule::AtLeast:
      return std::max(natural, layouter_.Pixels(format_->lineSpacing));
    case LineRule::Exact:
      return std::max(1.0, layouter_.Pixels(format_->lineSpacing));
    case LineRule::Multiple:
      return natural * std::clamp(1.0 * format_->lineSpacing / kSingleLine, 0.1, 100.0);
  }
  return natural;
}

// Extra or missing space of a fixed height goes above the text, that of a multiple below it.
void LineStack::Place(PieceLine& line, double ascent, double descent) {
  const double natural = std::ceil(ascent + descent);
  line.top = std::round(top_);
  line.height = std::max(1.0, std::round(LineHeight(natural)));
  const bool roomAbove =
      format_->lineRule == LineRule::AtLeast || format_->lineRule == LineRule::Exact;
  line.baseline = std::round(line.top + ascent + (roomAbove ? line.height - natural : 0));
  if (line.height < natural) piece_.overlaps = true;
  top_ = line.top + line.height;
  ++placed_;
}

// --- rows of cells

void LineStack::Begin(const CellText& text) {
  EndText();
  const auto isAround = [&](int cell) {
    int at = text.cell;
    while (at > cell) at = row_.cells[static_cast<std::size_t>(at)].parent;
    return at == cell;
  };
  while (!open_.empty() && !isAround(open_.back())) Leave();
  Enter(text.cell);
  const CellBox& cell = row_.CellOf(text);
  const ParaFormat& above = *std::exchange(format_, &tables_.paragraphs[text.format]);
  joins_ = text_ && text_->cell == text.cell && ShareBox(tables_, above, *format_);
  edges_ = EdgesIn(layouter_, tables_, *format_, cell);
  left_ = std::round(cell.TextLeft());
  frameTop_ = cells_[static_cast<std::size_t>(text.cell)].bottom +
              layouter_.Pixels(std::max(format_->spaceBefore, 0));
  top_ = frameTop_ + edges_.room.above;
  text_ = &text;
  look_ = Mixed(look_, text.format);
  AddBullet();
}

void LineStack::EndText() {
  if (!text_) return;
  const double bottom = top_ + edges_.room.below;
  if (format_->words != 0) AddFrame(std::round(bottom));
  cells_[static_cast<std::size_t>(text_->cell)].bottom =
      bottom + layouter_.Pixels(std::max(format_->spaceAfter, 0));
  piece_.lines[static_cast<std::size_t>(placed_) - 1].ending = text_->units;
}

void LineStack::AddFrame(double bottom) {
  if (!ParagraphBorders(tables_, format_->words).AreSeen()) return;
  PieceFrame frame{
      .area = {left_ + edges_.boxLeft, std::round(frameTop_), left_ + edges_.boxRight, bottom},
      .words = format_->words,
      .opens = !joins_,
      .follows = joins_};
  if (joins_) {
    piece_.frames.back().closes = false;
    frame.area.top = piece_.frames.back().area.bottom;
  }
  piece_.frames.push_back(frame);
}

/// Enters a cell and those around it, as far as they are not open. A table in a cell begins below
/// what the cell has so far, and its cells begin alike.
void LineStack::Enter(int cell) {
  if (!open_.empty() && open_.back() == cell) return;
  const CellBox& box = row_.cells[static_cast<std::size_t>(cell)];
  if (box.parent >= 0) Enter(box.parent);
  Extent& row = rows_[static_cast<std::size_t>(box.row)];
  if (row.top < 0)
    row.top = box.parent < 0 ? 0 : std::round(cells_[static_cast<std::size_t>(box.parent)].bottom);
  cells_[static_cast<std::size_t>(cell)].bottom = row.top;
  piece_.cells[static_cast<std::size_t>(cell)].firstLine = placed_;
  open_.push_back(cell);
}

void LineStack::Leave() {
  const auto cell = static_cast<std::size_t>(open_.back());
  const CellBox& box = row_.cells[cell];
  Extent& row = rows_[static_cast<std::size_t>(box.row)];
  row.bottom = std::max(row.bottom, cells_[cell].bottom + layouter_.Pixels(kRowRoom));
  piece_.cells[cell].endLine = placed_;
  open_.pop_back();
  if (box.parent >= 0) cells_[static_cast<std::size_t>(box.parent)].bottom = row.bottom;
}

void LineStack::FinishRows() {
  EndText();
  while (!open_.empty()) Leave();
  for (PieceCell& cell : piece_.cells) {
    cell.top = rows_[static_cast<std::size_t>(cell.row)].top;
    cell.bottom = std::round(rows_[static_cast<std::size_t>(cell.row)].bottom);
  }
  piece_.height = piece_.cells.front().bottom;
}

void LineStack::Finish(std::u16string_view text) {
  if (row_.Empty()) {
    const double below = edges_.room.below + layouter_.Pixels(std::max(format_->spaceAfter, 0));
    piece_.height = std::round(piece_.closes ? top_ + below : top_);
  } else {
    FinishRows();
  }
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
  look = Mixed(look, look_);
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
