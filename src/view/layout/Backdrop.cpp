#include "view/layout/Backdrop.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "document/BorderSource.h"
#include "document/tables/TableRow.h"
#include "view/layout/LineStack.h"

namespace lumenote {

namespace {

using Style = BorderLine::Style;

constexpr double kOverhang = 2;      // pixels; borders beside the text stay in the pane
constexpr int kWholeShare = 10'000;  // of an area
constexpr int kGridShare = 3'000;    // of the ink in lines that nobody asked for
constexpr int kShadeOnDark = 3'000;  // of a light shade on a dark ground

Colour Mixed(Colour one, Colour other, int share) {
  Colour mixed = 0;
  for (int bits = 0; bits < 24; bits += 8) {
    const int from = static_cast<int>(one >> bits & 0xFF);
    const int to = static_cast<int>(other >> bits & 0xFF);
    mixed |= static_cast<Colour>(from + (to - from) * share / kWholeShare) << bits;
  }
  return mixed;
}

int Grey(Colour colour) {
  const auto channel = [&](int bits) { return static_cast<int>(colour >> bits & 0xFF); };
  return (channel(0) * 11 + channel(8) * 16 + channel(16) * 5) / 32;
}

double ThicknessOf(const TextLayouter& layouter, const BorderLine& line) {
  if (line.style == Style::None) return 0;
  const double width = std::max(1.0, std::round(layouter.Pixels(line.width)));
  return line.style == Style::Double ? 3 * width : width;
}

/// From the text to the far edge of the line; 0 if there is none.
double RoomOf(const TextLayouter& layouter, const BorderLine& line) {
  const double thickness = ThicknessOf(layouter, line);
  return thickness == 0 ? 0 : thickness + std::round(layouter.Pixels(line.space));
}

/// Collects the parts of a piece.
class Painter {
 public:
  Painter(const TextLayouter& layouter, const Document& document, const PixelRect& clip,
          const BackdropColours& colours)
      : layouter_(layouter),
        head_(document.Formats().heads[document.Mark().head]),
        clip_(clip),
        colours_(colours) {}

  void Shade(const PixelRect& area, const Shading& shading);
  void Across(const BorderLine& line, double left, double right, double top);
  void Down(const BorderLine& line, double top, double bottom, double left);
  /// A line that marks a cell without lines of its own.
  void Grid(const PixelRect& area) {
    if (colours_.grid) Line(area, Mixed(colours_.ground, colours_.ink, kGridShare));
  }
  double Thickness(const BorderLine& line) const { return ThicknessOf(layouter_, line); }

  std::vector<BackdropPart> parts;

 private:
  PixelRect Clipped(const PixelRect& area) const;
  void Fill(const PixelRect& area, Colour colour);
  void Line(const PixelRect& area, Colour colour);
  void Strokes(const BorderLine& line, const PixelRect& area, bool across);
  void Dashes(PixelRect area, bool across, double dash, Colour colour);
  Colour InkOf(const BorderLine& line) const;

  const TextLayouter& layouter_;
  const KeptHead& head_;
  const PixelRect clip_;
  const BackdropColours& colours_;
};

PixelRect Painter::Clipped(const PixelRect& area) const {
  return {std::max(area.left, clip_.left), std::max(area.top, clip_.top),
          std::min(area.right, clip_.right), std::min(area.bottom, clip_.bottom)};
}

void Painter::Fill(const PixelRect& area, Colour colour) {
  if (const PixelRect seen = Clipped(area); !seen.IsEmpty()) parts.push_back({seen, colour});
}

void Painter::Line(const PixelRect& area, Colour colour) {
  PixelRect seen = Clipped(area);
  if (seen.IsEmpty()) return;
  const bool across = area.Width() > area.Height();
  (across ? seen.top : seen.left) = across ? area.top : area.left;
  (across ? seen.bottom : seen.right) = across ? area.bottom : area.right;
  parts.push_back({seen, colour, true});
}

// Text of automatic colour stays readable on a shade that the note's author saw under black text.
void Painter::Shade(const PixelRect& area, const Shading& shading) {
  if (!shading.IsSeen() || colours_.plain) return;
  constexpr Colour kWhite = 0xFFFFFF;
  const bool dark = Grey(colours_.ground) < 128;
  const Colour ground = shading.ground == 0 ? kWhite : ColourOf(head_, shading.ground, kWhite);
  const Colour pattern = shading.pattern == 0 ? 0 : ColourOf(head_, shading.pattern, 0);
  const Colour shade = Mixed(ground, pattern, shading.share);
  if (shade == kWhite) return;
  Fill(area, dark ? Mixed(colours_.ground, shade, kShadeOnDark) : shade);
}

Colour Painter::InkOf(const BorderLine& line) const {
  constexpr int kLeastDifference = 64;
  if (line.colour == 0 || colours_.plain) return colours_.ink;
  const Colour colour = ColourOf(head_, line.colour, colours_.ink);
  const bool seen = std::abs(Grey(colour) - Grey(colours_.ground)) >= kLeastDifference;
  return seen || Grey(colours_.ground) >= 128 ? colour : colours_.ink;
}

void Painter::Across(const BorderLine& line, double left, double right, double top) {
  Strokes(line, {left, top, right, top + Thickness(line)}, true);
}

void Painter::Down(const BorderLine& line, double top, double bottom, double left) {
  Strokes(line, {left, top, left + Thickness(line), bottom}, false);
}

void Painter::Strokes(const BorderLine& line, const PixelRect& area, bool across) {
  const Colour ink = InkOf(line);
  const double width = across ? area.Height() : area.Width();
  switch (line.style) {
    case Style::None:
      return;
    case Style::Single:
      return Line(area, ink);
    case Style::Double: {
      PixelRect first = area;
      PixelRect last = area;
      (across ? first.bottom : first.right) -= 2 * width / 3;
      (across ? last.top : last.left) += 2 * width / 3;
      Line(first, ink);
      return Line(last, ink);
    }
    case Style::Dotted:
      return Dashes(area, across, width, ink);
    case Style::Dashed:
      return Dashes(area, across, 4 * width, ink);
  }
}

// Only those that are seen, however long the line is.
void Painter::Dashes(PixelRect area, bool across, double dash, Colour colour) {
  double& start = across ? area.left : area.top;
  double& stop = across ? area.right : area.bottom;
  const double end = std::min(stop, across ? clip_.right : clip_.bottom);
  const double hidden = (across ? clip_.left : clip_.top) - start;
  if (hidden > 0) start += std::floor(hidden / (2 * dash)) * 2 * dash;
  for (; start < end; start += 2 * dash) {
    stop = std::min(end, start + dash);
    Fill(area, colour);
  }
}

// --- rows

const Kept* RowAbove(const Document& document, const Piece& piece) {
  return piece.from > 0 ? RowEndAt(document, piece.from - 2) : nullptr;
}

/// Where lines of a cell are, on whole pixels.
PixelRect PlaceOf(const PieceCell& cell) {
  return {std::round(cell.left), cell.top, std::round(cell.right), cell.bottom};
}

void PaintGrid(Painter& painter, const PixelRect& cell, bool top) {
  if (top) painter.Grid({cell.left, cell.top, cell.right + 1, cell.top + 1});
  painter.Grid({cell.left, cell.bottom - 1, cell.right + 1, cell.bottom});
  painter.Grid({cell.left, cell.top, cell.left + 1, cell.bottom});
  painter.Grid({cell.right, cell.top, cell.right + 1, cell.bottom});
}

void PaintCell(Painter& painter, const Borders& borders, const PixelRect& cell, bool top) {
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
bool DrawsTop(const Document& document, const Piece& piece, const PieceCell& first) {
  const auto above = RowBefore(document, piece, first);
  if (!above) return true;
  const RowFrame frame = RowFrameOf(document.Formats(), *above);
  return frame.IsLined() && std::ranges::all_of(frame.cells, [](const Borders& cell) {
           return cell.sides[Borders::Bottom].style == Style::None;
         });
}

void PaintRow(Painter& painter, const Document& document, const Piece& piece, int row) {
  const RowFrame frame = RowFrameOf(document.Formats(), piece.rows[static_cast<std::size_t>(row)]);
  std::vector<const PieceCell*> cells;
  for (const PieceCell& cell : piece.cells)
    if (cell.row == row) cells.push_back(&cell);
  const bool top = DrawsTop(document, piece, *cells.front());
  const bool lined = frame.IsLined();
  const std::size_t skipped = frame.cells.size() - std::min(frame.cells.size(), cells.size());
  const auto bordersOf = [&](std::size_t cell) {
    return skipped + cell < frame.cells.size() ? frame.cells[skipped + cell] : Borders();
  };
  for (std::size_t i = 0; i < cells.size(); ++i)
    painter.Shade(PlaceOf(*cells[i]), bordersOf(i).shading);
  for (std::size_t i = 0; i < cells.size(); ++i)
    if (lined)
      PaintCell(painter, bordersOf(i), PlaceOf(*cells[i]), top);
    else
      PaintGrid(painter, PlaceOf(*cells[i]), top);
}

// --- paragraphs

const ParaFormat& FormatOf(const Document& document, Position position) {
  return document.Formats().paragraphs[document.ParaFormatAt(position)];
}

/// Whether two paragraphs stand in the same box.
bool Join(const FormatTables& tables, const ParaFormat& one, const ParaFormat& other) {
  const auto edges = [](const ParaFormat& format) {
    return std::array{format.firstIndent, format.hangingIndent, format.rightIndent};
  };
  return edges(one) == edges(other) &&
         (one.words == other.words ||
          ParagraphBorders(tables, one.words) == ParagraphBorders(tables, other.words));
}

/// The format of the paragraph above, or below, if it is in the same box.
bool JoinsAbove(const Document& document, const Piece& piece, const ParaFormat& format) {
  return piece.from > 0 && !RowAbove(document, piece) &&
         Join(document.Formats(), FormatOf(document, piece.from - 1), format);
}

bool JoinsBelow(const Document& document, const Piece& piece, const ParaFormat& format) {
  const Position below = piece.to + 2;
  return below <= document.Length() && !RowAround(document, below) &&
         Join(document.Formats(), FormatOf(document, below), format);
}

class ParagraphBox {
 public:
  ParagraphBox(const TextLayouter& layouter, const Document& document, const Piece& piece,
               const Borders& borders);
  void Paint(Painter& painter) const;

 private:
  const TextLayouter& layouter_;
  const Borders& borders_;
  bool opens_;  // not in the box of the paragraph above
  bool closes_;
  bool between_;  // a paragraph in the same box above
  PixelRect text_;
};

ParagraphBox::ParagraphBox(const TextLayouter& layouter, const Document& document,
                           const Piece& piece, const Borders& borders)
    : layouter_(layouter), borders_(borders) {
  const ParaFormat& format = document.Formats().paragraphs[piece.format];
  const bool joins = piece.opens && JoinsAbove(document, piece, format);
  opens_ = piece.opens && !joins;
  between_ = joins;
  closes_ = piece.closes && !JoinsBelow(document, piece, format);
  const LineEdges edges = EdgesOf(layouter, format);
  text_ = {std::min(edges.first, edges.following), 0, edges.right, piece.height};
  if (opens_) text_.top = std::round(layouter.Pixels(format.spaceBefore));
  if (closes_) text_.bottom -= std::round(layouter.Pixels(format.spaceAfter));
}

void ParagraphBox::Paint(Painter& painter) const {
  const auto& sides = borders_.sides;
  PixelRect box = text_;
  const double left = text_.left - RoomOf(layouter_, sides[Borders::Left]);
  const double end = text_.right + RoomOf(layouter_, sides[Borders::Right]);
  box.left = std::round(std::max(left, -kOverhang));
  box.right = std::round(std::min(end, layouter_.Width() + kOverhang));
  painter.Shade(box, borders_.shading);
  if (between_) painter.Across(sides[Borders::Between], box.left, box.right, box.top);
  if (opens_) painter.Across(sides[Borders::Top], box.left, box.right, box.top);
  const double below = box.bottom - painter.Thickness(sides[Borders::Bottom]);
  if (closes_) painter.Across(sides[Borders::Bottom], box.left, box.right, below);
  painter.Down(sides[Borders::Left], box.top, box.bottom, box.left);
  const double right = box.right - painter.Thickness(sides[Borders::Right]);
  painter.Down(sides[Borders::Right], box.top, box.bottom, right);
}

std::uint64_t Hashed(std::uint64_t hash, std::uint64_t value) {
  return (hash ^ value) * 0x9E3779B97F4A7C15 + (hash >> 29);
}

}  // namespace

BorderRoom BorderRoomOf(const TextLayouter& layouter, const FormatTables& tables,
                        const ParaFormat& format) {
  if (format.words == 0) return {};
  const Borders borders = ParagraphBorders(tables, format.words);
  const auto room = [&](Borders::Side side) { return RoomOf(layouter, borders.sides[side]); };
  return {std::max(room(Borders::Top), room(Borders::Between)), room(Borders::Bottom)};
}

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
                                     const BackdropColours& colours) {
  Painter painter(layouter, document, clip, colours);
  if (!piece.cells.empty()) {
    for (int row = 0; row < std::ssize(piece.rows); ++row) PaintRow(painter, document, piece, row);
    return std::move(painter.parts);
  }
  const FormatTables& tables = document.Formats();
  const WordsId words = tables.paragraphs[piece.format].words;
  if (words == 0) return {};
  const Borders borders = ParagraphBorders(tables, words);
  if (borders.AreSeen()) ParagraphBox(layouter, document, piece, borders).Paint(painter);
  return std::move(painter.parts);
}

}  // namespace lumenote
