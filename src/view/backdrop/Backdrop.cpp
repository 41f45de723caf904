#include "view/backdrop/Backdrop.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "document/BorderSource.h"
#include "document/tables/TableRow.h"
#include "view/layout/LineStack.h"

namespace lumenote {

namespace {

// --- rows

const Kept* RowAbove(const Document& document, const Piece& piece) {
  return piece.from > 0 ? RowEndAt(document, piece.from - 2) : nullptr;
}

/// Where lines of a cell are, on whole pixels.
PixelRect PlaceOf(const PieceCell& cell, const RowOnPage& page) {
  return {std::round(cell.left), std::max(cell.top, page.top), std::round(cell.right),
          std::min(cell.bottom, page.bottom)};
}

void PaintGrid(BackdropPainter& painter, const PixelRect& cell, bool top) {
  if (top) painter.Grid({cell.left, cell.top, cell.right + 1, cell.top + 1});
  painter.Grid({cell.left, cell.bottom - 1, cell.right + 1, cell.bottom});
  painter.Grid({cell.left, cell.top, cell.left + 1, cell.bottom});
  painter.Grid({cell.right, cell.top, cell.right + 1, cell.bottom});
}

void PaintCell(BackdropPainter& painter, const Borders& borders, const PixelRect& cell, bool top) {
  const auto& sides = borders.sides;
  const double right = cell.right + painter.Thickness(sides[Borders::Right]);
  if (top) painter.Across(sides[Borders::Top], cell.left, right, cell.top);
  const BorderLine& below = sides[Borders::Bottom];
  painter.Across(below, cell.left, right, cell.bottom - painter.Thickness(below));
  painter.Down(sides[Borders::Left], cell.top, cell.bottom, cell.left);
  painter.Down(sides[Borders::Right], cell.top, cell.bottom, cell.right);
}

/// What is kept at the end of the row that ends where this one begins; empty if none does.
std::optional<ItemId> RowBefore(const Document& document, const Piece& piece,
                                const PieceCell& cell) {
  if (cell.parent < 0) {
    const Kept* above = RowAbove(document, piece);
    return above ? std::optional(above->self) : std::nullopt;
  }
  for (const PieceCell& other : piece.cells)
    if (other.parent == cell.parent && other.row != cell.row && other.bottom == cell.top)
      return piece.rows[static_cast<std::size_t>(other.row)];
  return std::nullopt;
}

/// Whether a row draws the line between itself and the row above, which draws its own below it.
bool DrawsTop(const BackdropPainter& painter, const Document& document, const Piece& piece,
              const PieceCell& first) {
  const auto above = RowBefore(document, piece, first);
  if (!above) return true;
  const RowFrame frame = RowFrameOf(document.Formats(), *above);
  return (frame.IsLined() || !painter.ShowsGrid()) &&
         std::ranges::all_of(frame.cells, [](const Borders& cell) {
           return cell.sides[Borders::Bottom].style == BorderLine::Style::None;
         });
}

void PaintRow(BackdropPainter& painter, const Document& document, const Piece& piece, int row,
              const RowOnPage& page) {
  const RowFrame frame = RowFrameOf(document.Formats(), piece.rows[static_cast<std::size_t>(row)]);
  std::vector<const PieceCell*> cells;
  for (const PieceCell& cell : piece.cells)
    if (cell.row == row) cells.push_back(&cell);
  const PixelRect first = PlaceOf(*cells.front(), page);
  if (first.bottom <= first.top) return;
  const bool top = first.top == page.top || DrawsTop(painter, document, piece, *cells.front());
  const bool lined = frame.IsLined();
  const std::size_t skipped = frame.cells.size() - std::min(frame.cells.size(), cells.size());
  const auto bordersOf = [&](std::size_t cell) {
    return skipped + cell < frame.cells.size() ? frame.cells[skipped + cell] : Borders();
  };
  for (std::size_t i = 0; i < cells.size(); ++i)
    painter.Shade(PlaceOf(*cells[i], page), bordersOf(i).shading);
  for (std::size_t i = 0; i < cells.size(); ++i)
    if (lined)
      PaintCell(painter, bordersOf(i), PlaceOf(*cells[i], page), top);
    else
      PaintGrid(painter, PlaceOf(*cells[i], page), top);
}

// --- paragraphs

const ParaFormat& FormatOf(const Document& document, Position position) {
  return document.Formats().paragraphs[document.ParaFormatAt(position)];
}

bool JoinsAbove(const Document& document, const Piece& piece, const ParaFormat& format) {
  return piece.from > 0 && !RowAbove(document, piece) &&
         ShareBox(document.Formats(), FormatOf(document, piece.from - 1), format);
}

bool JoinsBelow(const Document& document, const Piece& piece, const ParaFormat& format) {
  const Position below = piece.to + 2;
  return below <= document.Length() && !RowAround(document, below) &&
         ShareBox(document.Formats(), FormatOf(document, below), format);
}

/// The frame of a piece outside of tables, as far as it is in the piece.
std::optional<PieceFrame> FrameAround(const TextLayouter& layouter, const Document& document,
                                      const Piece& piece) {
  const ParaFormat& format = document.Formats().paragraphs[piece.format];
  if (format.words == 0 || !piece.cells.empty()) return std::nullopt;
  if (!ParagraphBorders(document.Formats(), format.words).AreSeen()) return std::nullopt;
  const bool joins = piece.opens && JoinsAbove(document, piece, format);
  const LineEdges edges = EdgesOf(layouter, document.Formats(), format);
  PieceFrame frame{.area = {edges.boxLeft, 0, edges.boxRight, piece.height},
                   .words = format.words,
                   .opens = piece.opens && !joins,
                   .closes = piece.closes && !JoinsBelow(document, piece, format),
                   .follows = joins};
  if (frame.opens) frame.area.top = std::round(layouter.Pixels(format.spaceBefore));
  if (frame.closes) frame.area.bottom -= std::round(layouter.Pixels(format.spaceAfter));
  return frame;
}

void PaintFrame(BackdropPainter& painter, const FormatTables& tables, const PieceFrame& frame) {
  const Borders borders = ParagraphBorders(tables, frame.words);
  const auto& sides = borders.sides;
  const PixelRect& box = frame.area;
  painter.Shade(box, borders.shading);
  if (frame.follows) painter.Across(sides[Borders::Between], box.left, box.right, box.top);
  if (frame.opens) painter.Across(sides[Borders::Top], box.left, box.right, box.top);
  const double below = box.bottom - painter.Thickness(sides[Borders::Bottom]);
  if (frame.closes) painter.Across(sides[Borders::Bottom], box.left, box.right, below);
  painter.Down(sides[Borders::Left], box.top, box.bottom, box.left);
  const double right = box.right - painter.Thickness(sides[Borders::Right]);
  painter.Down(sides[Borders::Right], box.top, box.bottom, right);
}

std::uint64_t Hashed(std::uint64_t hash, std::uint64_t value) {
  return (hash ^ value) * 0x9E3779B97F4A7C15 + (hash >> 29);
}

}  // namespace

std::uint64_t BackdropLook(const Document& document, const Piece& piece) {
  const ParaFormat& format = document.Formats().paragraphs[piece.format];
  if (piece.rows.empty() && format.words == 0) return 0;
  std::uint64_t look = format.words;
  for (const ItemId row : piece.rows) look = Hashed(look, row + 1);
  for (const Position beside : {piece.from - 2, piece.to + 2}) {
    if (beside < 0 || beside > document.Length()) continue;
    const Kept* other = RowEndAt(document, beside);
    look = Hashed(look, other ? other->self + 1 : 0);
    look = Hashed(look, document.ParaFormatAt(beside));
  }
  look = Hashed(look, piece.rows.empty() && RowAround(document, piece.to + 2) ? 1 : 0);
  return look | 1;
}

std::vector<BackdropPart> BackdropOf(const TextLayouter& layouter, const Document& document,
                                     const Piece& piece, const PixelRect& clip,
                                     const BackdropColours& colours, const RowOnPage& page) {
  BackdropPainter painter(layouter, document, clip, colours);
  for (int row = 0; row < std::ssize(piece.rows); ++row)
    PaintRow(painter, document, piece, row, page);
  for (const PieceFrame& frame : piece.frames) PaintFrame(painter, document.Formats(), frame);
  if (const auto frame = FrameAround(layouter, document, piece))
    PaintFrame(painter, document.Formats(), *frame);
  return std::move(painter.parts);
}

}  // namespace lumenote
