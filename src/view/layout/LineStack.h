// Positions the lines of a paragraph: edges, tab stops, heights. All layouters use it.
#pragma once
#include <cstdint>
#include <string_view>
#include <vector>

#include "view/layout/Backdrop.h"
#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Distance of default tab stops, in twips.
inline constexpr double kDefaultTabStep = 720;

/// The limits of lines, in pixels from the text's left edge.
struct LineEdges {
  double first = 0;
  double following = 0;
  double right = 0;
  double bullet = -1;  // negative: no bullet

  double Left(bool firstLine) const { return firstLine ? first : following; }
  /// Room of a line that starts at `left`; never less than a minimum.
  double Room(double left) const;
};

LineEdges EdgesOf(const TextLayouter& layouter, const ParaFormat& format);

/// The share of a line's free room on the side where its text begins: 0, 0.5 or 1. Left and right
/// are the page's own, but a paragraph from right to left begins at the right unless it says
/// otherwise.
double FreeRoomBefore(const ParaFormat& format);

struct PixelTab {
  double x = 0;
  TabKind kind = TabKind::Left;
};

/// All tab stops of a paragraph, including the default ones between and after those it defines: by
/// ascending `x`, in pixels from the text's left edge.
std::vector<PixelTab> TabsOf(const TextLayouter& layouter, const TabStops& stops,
                             const LineEdges& edges);

/// Stacks the lines of a piece, whose starts and ends the layouter has determined: call `Place` for
/// each in turn, then `Finish`.
class LineStack {
 public:
  /// All must outlive the stack.
  LineStack(const TextLayouter& layouter, const Document& document, Piece& piece);

  const ParaFormat& Format() const { return format_; }
  const LineEdges& Edges() const { return edges_; }
  /// Positions the line below the previous one, given the extent of its text above and below its
  /// baseline.
  void Place(PieceLine& line, double ascent, double descent);
  /// In a row of cells: the next line is the first of the cell between these edges.
  void BeginCell(double left, double right);
  /// Computes height, bullet and the lines' look values; `text` is the layout's.
  void Finish(std::u16string_view text);

 private:
  double LineHeight(double natural) const;
  std::uint64_t LookOf(const PieceLine& line, std::u16string_view text) const;

  const TextLayouter& layouter_;
  Piece& piece_;
  const ParaFormat& format_;
  const LineEdges edges_;
  const BorderRoom room_;
  double start_ = 0;  // below the space before the paragraph
  double top_ = 0;    // of the next line
  double most_ = 0;   // lowest bottom of the cells so far
  int placed_ = 0;
};

}  // namespace lumenote
