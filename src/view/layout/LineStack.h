// Where the lines of a paragraph lie: edges, tab stops, heights. Every layouter's pieces are
// stacked by it.
#pragma once
#include <string_view>
#include <vector>

#include "view/layout/TextLayouter.h"

namespace lumenote {

/// Between tab stops that no paragraph states, in twips.
inline constexpr double kDefaultTabStep = 720;

/// Where lines may lie, in pixels from the text's left edge.
struct LineEdges {
  double first = 0;
  double following = 0;
  double right = 0;
  double bullet = -1;  // negative without one

  double Left(bool firstLine) const { return firstLine ? first : following; }
  /// Room of a line that begins at `left`; some even where there is none.
  double Room(double left) const;
};

LineEdges EdgesOf(const TextLayouter& layouter, const ParaFormat& format);

struct PixelTab {
  double x = 0;
  TabKind kind = TabKind::Left;
};

/// The tab stops of a paragraph, those between and behind the ones it states among them: by rising
/// `x`, pixels from the text's left edge.
std::vector<PixelTab> TabsOf(const TextLayouter& layouter, const TabStops& stops,
                             const LineEdges& edges);

/// Stacks the lines of a piece, whose starts and ends the layouter has found: `Place` for each one
/// in turn, then `Finish`.
class LineStack {
 public:
  /// All outlive the stack.
  LineStack(const TextLayouter& layouter, const Document& document, Piece& piece);

  const ParaFormat& Format() const { return format_; }
  const LineEdges& Edges() const { return edges_; }
  /// Gives the line its place below the one before; its text reaches so far from its baseline.
  void Place(PieceLine& line, double ascent, double descent);
  /// In a row of cells: the next line is the first one of the cell, beside the others.
  void BeginCell(double left, double right);
  /// Height, bullet and the lines' looks; `text` is the layout's.
  void Finish(std::u16string_view text);

 private:
  double LineHeight(double natural) const;
  std::size_t LookOf(const PieceLine& line, std::u16string_view text) const;

  const TextLayouter& layouter_;
  Piece& piece_;
  const ParaFormat& format_;
  const LineEdges edges_;
  double start_ = 0;  // below the space before the paragraph
  double top_ = 0;    // of the next line
  double most_ = 0;   // the bottom of the highest cell so far
  int placed_ = 0;
};

}  // namespace lumenote
