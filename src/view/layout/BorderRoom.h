// What the borders of a paragraph take around its lines.
#pragma once
#include "document/BorderSource.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// From the text to the far edges of the lines, in pixels; 0 where there is none.
struct BorderRoom {
  double above = 0;
  double left = 0;
  double below = 0;
  double right = 0;
};
BorderRoom BorderRoomOf(const TextLayouter& layouter, const FormatTables& tables,
                        const ParaFormat& format);

/// In pixels; 0 if there is no line.
double ThicknessOf(const TextLayouter& layouter, const BorderLine& line);

/// Whether two paragraphs stand in the same box, if they follow each other.
bool ShareBox(const FormatTables& tables, const ParaFormat& one, const ParaFormat& other);

}  // namespace lumenote
