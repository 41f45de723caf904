// The rows of tables among the paragraphs of a note, and their cells.
#pragma once
#include <optional>

#include "document/Document.h"
#include "document/tables/CellParagraphs.h"

namespace lumenote {

/// The paragraphs of a row of a table that lies in no other one, from the first one's start to the
/// break that ends the last one. Tables in its cells are part of it.
struct TableRow {
  Position start = 0;
  Position end = 0;
};

/// Only so many paragraphs and characters before its end belong to a row, so that it can be looked
/// at as a whole; what precedes them is ordinary text.
inline constexpr Position kMostOfRow = 400;
inline constexpr Position kLongestRow = 40'000;

/// The row that holds a position; empty outside of rows, and in cells whose row does not end.
std::optional<TableRow> RowAround(const Document& document, Position position);

/// The first position whose row an edit at `position` may have changed or joined to another one.
Position FirstOfRowsAround(const Document& document, Position position);

/// What is kept at the break there if it ends a row that lies in no other one; else null.
const Kept* RowEndAt(const Document& document, Position paragraphEnd);

/// The text of the cell that holds `position`, without tables in it, up to the last position before
/// the cell's end; outside of tables, up to the next ones. An empty paragraph before a table is not
/// held back by it.
Selection CellAround(const Document& document, Position position);

/// The paragraph that holds `position`, in a row the one in its cell.
CellParagraph ParagraphAround(const Document& document, Position position);

/// The format of the paragraph that holds `position`, in a row that of the paragraph in its cell,
/// marked as part of a table. The row's own end says whether rows are marked.
ParaFormat FormatInCell(const Document& document, Position position);

/// Whether `position` is in a row without paragraphs of its own, whose cells thus hold only one.
bool IsInUnmarkedRow(const Document& document, Position position);

}  // namespace lumenote
