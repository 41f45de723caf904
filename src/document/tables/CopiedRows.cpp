#include "document/tables/CopiedRows.h"

#include <optional>

#include "document/tables/TableRow.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kBreak = u"\r\n";

}  // namespace

CopiedText WithRowEnd(const Document& document, Selection range) {
  CopiedText copied{document, range};
  const auto row = RowAround(document, range.end);
  const bool whole =
      row && row->end == range.end && row->start >= range.start && row->start < range.end;
  if (!whole) return copied;
  const FinalMark& mark = document.Mark();
  if (row->end == document.Length())
    copied.document.Replace(row->end, row->end,
                            PlainFragment(kBreak, mark.character, mark.paragraph));
  copied.range.end += static_cast<Position>(kBreak.size());
  return copied;
}

CopiedRows FindCopiedRows(const Fragment& fragment, const FormatTables& tables) {
  std::optional<Position> end;
  fragment.leaves.ForEachRun(0, fragment.Length(), [&](Position at, TextView, CharId format) {
    const Kept& kept = tables.kept[tables.characters[format].kept];
    if (!end && kept.kind == Kept::Kind::Row && kept.nested == 0) end = at;
  });
  if (!end) return {};
  const LeafList& leaves = fragment.leaves;
  const Position lastBreak = leaves.BreakAt(leaves.Breaks() - 1);
  const Position behind = lastBreak + static_cast<Position>(kBreak.size());
  CopiedRows rows{.any = true, .first = true, .last = behind == leaves.Length()};
  const auto look = [&](ParaId id) {
    rows.first = rows.first && tables.paragraphs[id].nesting > 0;
  };
  leaves.ForEachMark(0, leaves.BreaksBefore(*end), look);
  return rows;
}

}  // namespace lumenote
