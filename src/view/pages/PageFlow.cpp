#include "view/pages/PageFlow.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "document/BorderSource.h"

namespace lumenote {

namespace {

constexpr Position kPieceLength = 8'000;  // more than a page has
constexpr double kSlack = 0.5;            // pixels; lengths are rounded

/// Where a row can be cut without cutting a line: its lines' bottoms that no line crosses, but for
/// the lowest.
std::vector<double> CutsOf(const Piece& row) {
  std::vector<double> cuts;
  for (const PieceLine& line : row.lines) {
    const double y = line.top + line.height;
    const bool crossed = std::ranges::any_of(row.lines, [&](const PieceLine& other) {
      return other.top + kSlack < y && other.top + other.height > y + kSlack;
    });
    if (!crossed) cuts.push_back(y);
  }
  std::ranges::sort(cuts);
  std::erase_if(cuts, [lowest = cuts.back()](double cut) { return cut > lowest - kSlack; });
  return cuts;
}

}  // namespace

/// What the next piece needs to know of those above it.
struct PageFlow::Progress {
  double space = 0;        // below the last piece
  bool pageEnded = false;  // with the last paragraph
  bool held = false;       // the last paragraph stays with the next
  int line = 0;            // in the paragraph
  bool heading = false;    // the last row heads its table
  double headHeight = 0;   // of the rows that head the table
  Position headStart = 0;
};

RowOnPage PageFlow::Part::AsRow() const {
  RowOnPage row;
  if (top == 0 || y < top) row.top = top - y;
  if (bottom < y + piece.height) row.bottom = bottom - y;
  return row;
}

PageFlow::PageFlow(const Document& document, Selection range, TextLayouter& layouter, double room)
    : document_(document), range_(range), layouter_(layouter), room_(room) {
  Progress progress;
  for (Position at = range.start; at < range.end || bands_.empty();) {
    const auto piece = LayOut(at, range.end);
    AddPiece(*piece, progress);
    at = Behind(*piece);
  }
}

// A piece stops at `stop` if a line begins there.
std::unique_ptr<Piece> PageFlow::LayOut(Position from, Position stop) const {
  const Position end = document_.ParagraphEnd(document_.ParagraphOf(from));
  const Position most = std::min(end, std::max(range_.end, from));
  PieceSpan span{.from = from};
  if (stop > from && stop < most) span.nextKnown = stop;
  for (Position length = kPieceLength;; length *= 2) {
    span.complete = most - from <= length;
    span.to = span.complete ? most : document_.SnapBackward(from + length);
    if (auto piece = layouter_.LayOut(document_, span)) return piece;
  }
}

Position PageFlow::Behind(const Piece& piece) const {
  constexpr Position kBreak = 2;
  return piece.closes ? piece.to + kBreak : std::max(piece.to, piece.from + 1);
}

double PageFlow::SpaceAbove(const Piece& piece) const {
  const ParaFormat& format = document_.Formats().paragraphs[piece.format];
  return piece.opens && piece.cells.empty() ? std::round(layouter_.Pixels(format.spaceBefore)) : 0;
}

double PageFlow::SpaceBelow(const Piece& piece) const {
  const ParaFormat& format = document_.Formats().paragraphs[piece.format];
  return piece.closes && piece.cells.empty() ? std::round(layouter_.Pixels(format.spaceAfter)) : 0;
}

void PageFlow::AddPiece(const Piece& piece, Progress& progress) {
  const FormatTables& tables = document_.Formats();
  const PageWishes wishes = PageWishesOf(tables, tables.paragraphs[piece.format]);
  const double top = SpaceAbove(piece);
  PageBand whole{.start = piece.from,
                 .space = progress.space + top,
                 .height = piece.height - SpaceBelow(piece) - top,
                 .opensPage = piece.opens && (progress.pageEnded || wishes.newPage ||
                                              BeginsPage(document_, piece.from)),
                 .stays = piece.opens && progress.held};
  if (piece.opens) progress.line = 0;
  AddHead(piece, whole, progress);
  if (piece.cells.empty())
    AddLines(piece, whole, wishes, progress.line);
  else
    AddRow(piece, whole);
  progress.space = SpaceBelow(piece);
  progress.pageEnded = piece.closes && EndsPage(document_, piece.to);
  progress.held = piece.closes && wishes.withNext;
}

void PageFlow::AddLines(const Piece& piece, const PageBand& whole, const PageWishes& wishes,
                        int& number) {
  double top = SpaceAbove(piece);
  const double end = top + whole.height;
  PageBand band = whole;
  for (int i = 0; i < std::ssize(piece.lines); ++i, ++number) {
    const PieceLine& line = piece.lines[static_cast<std::size_t>(i)];
    const bool last = i + 1 == std::ssize(piece.lines);
    const double bottom = last ? end : line.top + line.height;
    const bool lone = number == 1 || (last && piece.closes);
    band.start = piece.LineStart(i);
    band.height = bottom - top;
    if (number > 0) band.stays = wishes.together || (lone && !wishes.loneLines);
    bands_.push_back(band);
    band = {};
    top = bottom;
  }
}

// A head that takes more than half of the page, or cuts a row that fits, is not repeated.
void PageFlow::AddHead(const Piece& row, PageBand& band, Progress& progress) const {
  const bool above = std::exchange(progress.heading, false);
  if (row.cells.empty()) {
    progress.headHeight = 0;
    return;
  }
  band.stays = band.stays || above;
  if (RowFrameOf(document_.Formats(), row.rows.front()).heads) {
    if (!above) progress.headStart = row.from;
    progress.headHeight = above ? progress.headHeight + row.height : row.height;
    progress.heading = true;
    return;
  }
  const double height = progress.headHeight;
  const bool isCut = band.height > room_;
  if (height > room_ / 2 || (!isCut && height + band.height > room_)) return;
  band.headStart = progress.headStart;
  band.headHeight = height;
}

void PageFlow::AddRow(const Piece& row, const PageBand& whole) {
  PageBand band = whole;
  double top = SpaceAbove(row);
  const double end = top + whole.height;
  if (whole.height > room_)
    for (const double cut : CutsOf(row)) {
      if (cut <= top + kSlack) continue;
      band.height = cut - top;
      bands_.push_back(band);
      band = {.start = row.from,
              .offset = cut,
              .height = end - cut,
              .headHeight = whole.headHeight,
              .headStart = whole.headStart};
      top = cut;
    }
  bands_.push_back(band);
}

double PageFlow::VisitHead(const PageBand& band,
                           const std::function<void(const Part&)>& visit) const {
  double y = 0;
  for (Position at = band.headStart; y < band.headHeight - kSlack;) {
    const auto row = LayOut(at, at);
    visit({*row, y, y, y + row->height});
    y += row->height;
    at = Behind(*row);
  }
  return band.headHeight;
}

void PageFlow::ForEachPart(std::size_t first, std::size_t last,
                           const std::function<void(const Part&)>& visit) const {
  if (first >= last) return;
  const bool isLast = last == bands_.size();
  const Position stop = isLast ? range_.end : bands_[last].start;
  const double cut = isLast ? 0 : bands_[last].offset;
  Position at = bands_[first].start;
  const double head = VisitHead(bands_[first], visit);
  double y = head;
  do {
    const auto piece = LayOut(at, stop);
    if (at == bands_[first].start)
      y -= bands_[first].offset > 0 ? bands_[first].offset : SpaceAbove(*piece);
    const double bottom = cut > 0 && piece->from == stop ? cut : piece->height;
    visit({*piece, y, std::max(y, head), y + bottom});
    y += piece->height;
    at = Behind(*piece);
  } while (at < stop || (cut > 0 && at == stop));
}

}  // namespace lumenote
