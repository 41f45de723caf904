#include "view/layout/InlineBoxes.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Twips.h"
#include "document/Footnotes.h"
#include "document/pictures/PictureFrame.h"
#include "view/layout/LineStack.h"

namespace lumenote {

namespace {

/// Of the lines that follow the first one, or of the first if that has less.
double RoomOf(const LineEdges& edges) { return edges.Room(std::max(edges.first, edges.following)); }

/// The room in the cell that holds a unit; that of the paragraph if there are no cells.
double RoomAt(const TextLayouter& layouter, const FormatTables& tables, const Piece& piece,
              const RowCells& row, int index) {
  if (row.Empty()) return RoomOf(EdgesOf(layouter, tables, tables.paragraphs[piece.format]));
  const CellText& text = row.TextAt(index);
  return RoomOf(EdgesIn(layouter, tables, tables.paragraphs[text.format], row.CellOf(text)));
}

/// Proportions stay; a box has whole pixels, at least one.
PixelSize Fitted(PixelSize wanted, PixelSize room) {
  const double scale = std::min({1.0, room.width / wanted.width, room.height / wanted.height});
  const auto whole = [&](double side) { return std::max(1.0, std::round(side * scale)); };
  return {std::min(whole(wanted.width), std::max(1.0, std::floor(room.width))),
          whole(wanted.height)};
}

/// As wide as one digit.
PixelSize NumberSize(const TextLayouter& layouter, const CharFormat& format) {
  constexpr double kHeight = 0.8125;
  constexpr double kDigit = 0.38;
  const double size = layouter.Pixels(format.size * kTwipsPerHalfPoint);
  return {size * kDigit, size * kHeight};
}

/// The box for an embedded character of the format; without an item if it needs none.
InlineBox BoxOf(const TextLayouter& layouter, const FormatTables& tables, const CharFormat& format,
                double width) {
  const ItemId id = EmbeddedItem(tables, format);
  if (format.effects & kHidden) return {};
  if (IsFootnote(tables, format))
    return {.item = id, .size = NumberSize(layouter, format), .number = 1};
  if (!IsBoxed(tables.items[id])) return {};
  const PictureFrame& frame = layouter.FrameOf(tables, id);
  const double twips = layouter.TwipsPerPixel();
  const PixelSize room{width, layouter.Pixels(layouter.Tallest())};
  const PixelSize size = Fitted({frame.width / twips, frame.height / twips}, room);
  return {.item = id, .size = size, .frame = frame};
}

/// Gives the boxes of footnotes their numbers, and room for all digits.
void NumberNotes(const TextLayouter& layouter, const Document& document, const Piece& piece,
                 std::vector<InlineBox>& boxes) {
  for (InlineBox& box : boxes) {
    if (box.number == 0) continue;
    box.number = layouter.Notes().At(document, piece.ToPosition(box.index));
    const auto digits = static_cast<double>(std::to_string(box.number).size());
    box.size.width = std::ceil(box.size.width * digits);
  }
  std::erase_if(boxes, [&](const InlineBox& box) {
    return box.number == 0 && document.Formats().items[box.item].kind == KeptItem::Kind::Note;
  });
}

}  // namespace

std::vector<InlineBox> BoxesIn(const TextLayouter& layouter, const Document& document,
                               const Piece& piece, const RowCells& row, int length) {
  const FormatTables& tables = document.Formats();
  std::vector<InlineBox> boxes;
  for (auto run = piece.runs.begin(); run != piece.runs.end(); ++run) {
    const CharFormat& format = tables.characters[run->format];
    if (EmbeddedItem(tables, format) == 0) continue;
    const double room = RoomAt(layouter, tables, piece, row, run->start);
    const InlineBox box = BoxOf(layouter, tables, format, room);
    if (box.item == 0) continue;
    const auto next = std::next(run);
    const int end = next == piece.runs.end() ? length : next->start;
    for (int i = run->start; i < end; ++i)
      if (!piece.IsComposed(i)) boxes.push_back(box), boxes.back().index = i;
  }
  NumberNotes(layouter, document, piece, boxes);
  return boxes;
}

void Extend(const std::vector<InlineBox>& boxes, const PieceLine& line, double& ascent) {
  for (const InlineBox& box : boxes)
    if (box.index >= line.start && box.index < line.end) ascent = std::max(ascent, box.size.height);
}

}  // namespace lumenote
