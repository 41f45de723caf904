#include "view/layout/InlineBoxes.h"

#include <algorithm>
#include <cmath>

#include "document/pictures/PictureFrame.h"
#include "view/layout/LineStack.h"

namespace lumenote {

namespace {

constexpr double kTallest = 31680;  // twips

/// The item that text of the format stands for; 0 if it is other text, or hidden.
ItemId BoxedItem(const FormatTables& tables, CharId id) {
  const CharFormat& format = tables.characters[id];
  const Kept& kept = tables.kept[format.kept];
  const bool boxed = kept.kind == Kept::Kind::Embedded && IsBoxed(tables.items[kept.self]);
  return boxed && !(format.effects & kHidden) ? kept.self : 0;
}

double RoomOf(const TextLayouter& layouter, const ParaFormat& format) {
  const LineEdges edges = EdgesOf(layouter, format);
  return edges.Room(std::max(edges.first, edges.following));
}

/// Proportions stay; a box has whole pixels, at least one.
PixelSize Fitted(PixelSize wanted, PixelSize room) {
  const double scale = std::min({1.0, room.width / wanted.width, room.height / wanted.height});
  const auto whole = [&](double side) { return std::max(1.0, std::round(side * scale)); };
  return {std::min(whole(wanted.width), std::max(1.0, std::floor(room.width))),
          whole(wanted.height)};
}

}  // namespace

std::vector<InlineBox> BoxesIn(const TextLayouter& layouter, const Document& document,
                               const Piece& piece, int length) {
  const FormatTables& tables = document.Formats();
  std::vector<InlineBox> boxes;
  for (auto run = piece.runs.begin(); run != piece.runs.end(); ++run) {
    const ItemId item = BoxedItem(tables, run->format);
    if (item == 0) continue;
    const PictureFrame frame = FrameOf(tables.items[item]);
    const double pixel = layouter.Pixels(kTwipsInPixel) / kTwipsInPixel;
    const PixelSize room{RoomOf(layouter, tables.paragraphs[piece.format]), kTallest * pixel};
    const PixelSize size = Fitted({frame.width * pixel, frame.height * pixel}, room);
    const auto next = std::next(run);
    const int end = next == piece.runs.end() ? length : next->start;
    for (int i = run->start; i < end; ++i)
      if (!piece.IsComposed(i)) boxes.push_back({.index = i, .item = item, .size = size});
  }
  return boxes;
}

void Extend(const std::vector<InlineBox>& boxes, const PieceLine& line, double& ascent) {
  for (const InlineBox& box : boxes)
    if (box.index >= line.start && box.index < line.end) ascent = std::max(ascent, box.size.height);
}

}  // namespace lumenote
