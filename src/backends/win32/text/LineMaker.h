// Breaks the shaped text of a piece into lines and places what is in them.
#pragma once
#include "backends/win32/text/UniscribePiece.h"
#include "view/layout/LineStack.h"
#include "view/layout/RowCells.h"

namespace lumenote {

class LineMaker {
 public:
  /// All must outlive the maker; `shaped` is of the piece's text.
  LineMaker(const TextLayouter& layouter, const Document& document, CharStyles& styles,
            UniscribePiece& piece, const RowCells& row, ShapedText shaped);

  /// Returns false if an incomplete span gave no whole line.
  bool Build(const PieceSpan& span);
  /// Lays out a row; `ends` are those of its texts in the piece's text.
  void BuildRow(const std::vector<int>& ends);

 private:
  /// What lies between the same edges: a paragraph, or one in a cell of a row.
  struct Column {
    int start = 0;
    int end = 0;
    LineEdges edges;
    double left = 0;  // pixels from the text's left edge, whence `edges` are measured
  };

  /// A line's text, and what of it hangs beyond the edge: the blanks at its
  /// end.
  struct Extent {
    int width = 0;
    int hanging = 0;
  };

  void AddLines(int start, int known, bool omitLast);
  void FindTabs();
  void AddText(const CellText& text, int start, int end);
  void EndWithLineBreak();
  int LineEnd(int start);
  int TabWidth(int tab, double x) const;
  double TabRoom(int tab, TabKind kind) const;
  Extent Measure(int start, int end) const;
  bool IsJustified(const PieceLine& line) const;
  void Justify(int start, int end);
  int LeftOf(const PieceLine& line, const Extent& extent) const;
  std::vector<LinePart> PartsOf(int start, int end) const;
  void PlaceParts(std::vector<LinePart>& parts, int left, int hangFrom) const;
  void PlaceUnits(const LinePart& part);
  void PlaceLine(PieceLine& line);
  void Stack(PieceLine& line);

  double LeftEdge(int start) const {
    return column_.edges.Left(piece_.opens && start == column_.start);
  }
  char16_t UnitAt(int index) const { return piece_.text[static_cast<std::size_t>(index)]; }
  ShapedUnit& Unit(int index) { return units_[static_cast<std::size_t>(index)]; }
  const ShapedUnit& Unit(int index) const { return units_[static_cast<std::size_t>(index)]; }

  const TextLayouter& layouter_;
  const Document& document_;
  CharStyles& styles_;
  UniscribePiece& piece_;
  const RowCells& row_;
  LineStack stack_;
  std::vector<ShapedUnit> units_;
  std::vector<PixelTab> tabs_;
  const double tabStep_;
  Column column_;
};

}  // namespace lumenote
