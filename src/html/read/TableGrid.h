// The columns of a table while its rows are read.
#pragma once
#include <cstddef>
#include <cstdint>
#include <vector>

#include "document/kept/RowSource.h"

namespace lumenote {

/// Cells come row by row, from left to right. A cell over several rows goes on, as an empty cell,
/// in those below; a page cannot make more than `kMostGoingOn` such cells of one table.
class TableGrid {
 public:
  struct Cell {
    int columns = 1;
    int rows = 1;   // this one and those below
    int width = 0;  // twips; 0 unknown
    bool goesOn = false;
  };

  /// The width of the next columns, before the rows.
  void AddColumns(int count, int width);
  void Add(const Cell& cell);
  /// Adds the cell that goes on from the row above at this place; false if none does.
  bool AddGoingOn();
  /// Adds an empty cell up to the next one that goes on from above; false if there is none.
  bool AddGap();
  /// Ends the row. Columns without a known width share what the others leave of the page.
  std::vector<RowCell> EndRow();

 private:
  static constexpr int kMostGoingOn = 10'000;

  struct Placed {
    int column = 0;
    Cell cell;
  };

  int WidthOf(const Placed& placed) const;
  void Learn(const Placed& placed);

  std::vector<Placed> row_;
  std::vector<Placed> above_;  // cells of earlier rows that go on in this one
  std::size_t nextAbove_ = 0;
  std::vector<Placed> below_;  // cells that go on in the next one
  std::vector<int> widths_;    // of columns; 0 unknown
  int column_ = 0;             // of the row's next cell
  int columns_ = 1;            // of the widest row so far
  int goingOn_ = 0;
};

}  // namespace lumenote
