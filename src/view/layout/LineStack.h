// Positions the lines of a paragraph: edges, tab stops, heights. All layouters use it.
#pragma once
#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "view/layout/BorderRoom.h"
#include "view/layout/RowCells.h"

namespace lumenote {

/// Distance of default tab stops, in twips.
inline constexpr double kDefaultTabStep = 720;

/// The limits of lines, in pixels from the left edge of the text or of a cell's text.
struct LineEdges {
  static constexpr double kLeastRoom = 16;

  double first = 0;
  double following = 0;
  double right = 0;
  double bullet = -1;         // negative: no bullet
  double least = kLeastRoom;  // the room that a line always has
  BorderRoom room{};
  double boxLeft = 0;  // of borders and shading
  double boxRight = 0;

  double Left(bool firstLine) const { return firstLine ? first : following; }
  /// Room of a line that starts at `left`.
  double Room(double left) const { return std::max(right - left, least); }
};

/// Borders that would leave the pane push the text inwards.
LineEdges EdgesOf(const TextLayouter& layouter, const FormatTables& tables,
                  const ParaFormat& format);
/// Those of a paragraph in a cell, which its lines and borders do not leave.
LineEdges EdgesIn(const TextLayouter& layouter, const FormatTables& tables,
                  const ParaFormat& format, const CellBox& cell);

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
/// each in turn, then `Finish`; in a row of cells, `Begin` before the lines of each text.
class LineStack {
 public:
  /// All must outlive the stack.
  LineStack(const TextLayouter& layouter, const Document& document, Piece& piece,
            const RowCells& row);

  /// Of the paragraph or, in a row, of the present text.
  const ParaFormat& Format() const { return *format_; }
  const LineEdges& Edges() const { return edges_; }
  /// Where `Edges` are measured from, in pixels from the text's left edge.
  double Left() const { return left_; }
  /// Positions the line below the previous one, given the extent of its text above and below its
  /// baseline.
  void Place(PieceLine& line, double ascent, double descent);
  /// The next line is the first of that text.
  void Begin(const CellText& text);
  /// Computes heights and the lines' look values; `text` is the layout's.
  void Finish(std::u16string_view text);

 private:
  /// A cell or row on the way down. Lengths are pixels from the piece's top.
  struct Extent {
    double top = -1;    // of a row; negative: it has not begun
    double bottom = 0;  // of what is placed
  };

  double LineHeight(double natural) const;
  std::uint64_t LookOf(const PieceLine& line, std::u16string_view text) const;
  void AddBullet();
  void EndText();
  void AddFrame(double bottom);
  void Enter(int cell);
  void Leave();
  void FinishRows();

  const TextLayouter& layouter_;
  const FormatTables& tables_;
  Piece& piece_;
  const RowCells& row_;
  const ParaFormat* format_;
  LineEdges edges_;
  double left_ = 0;
  double top_ = 0;  // of the next line
  int placed_ = 0;
  const CellText* text_ = nullptr;  // the present one
  double frameTop_ = 0;             // of its borders
  bool joins_ = false;              // the box of the text above
  std::vector<int> open_;           // the cells around the present text, the innermost last
  std::vector<Extent> cells_;
  std::vector<Extent> rows_;
  std::uint64_t look_ = 0;  // of the formats in cells
};

}  // namespace lumenote
