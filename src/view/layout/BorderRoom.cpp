#include "view/layout/BorderRoom.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumenote {

double ThicknessOf(const TextLayouter& layouter, const BorderLine& line) {
  if (line.style == BorderLine::Style::None) return 0;
  const double width = std::max(1.0, std::round(layouter.Pixels(line.width)));
  return line.style == BorderLine::Style::Double ? 3 * width : width;
}

BorderRoom BorderRoomOf(const TextLayouter& layouter, const FormatTables& tables,
                        const ParaFormat& format) {
  if (format.words == 0) return {};
  const Borders borders = ParagraphBorders(tables, format.words);
  const auto room = [&](Borders::Side side) {
    const BorderLine& line = borders.sides[side];
    const double thickness = ThicknessOf(layouter, line);
    return thickness == 0 ? 0 : thickness + std::round(layouter.Pixels(line.space));
  };
  return {.above = std::max(room(Borders::Top), room(Borders::Between)),
          .left = room(Borders::Left),
          .below = room(Borders::Bottom),
          .right = room(Borders::Right)};
}

bool ShareBox(const FormatTables& tables, const ParaFormat& one, const ParaFormat& other) {
  const auto edges = [](const ParaFormat& format) {
    return std::array{format.firstIndent, format.hangingIndent, format.rightIndent};
  };
  return edges(one) == edges(other) &&
         (one.words == other.words ||
          ParagraphBorders(tables, one.words) == ParagraphBorders(tables, other.words));
}

}  // namespace lumenote
