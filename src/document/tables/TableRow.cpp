#include "document/tables/TableRow.h"

#include <algorithm>
#include <vector>

namespace lumenote {

namespace {

const Kept& KeptAt(const Document& document, Position position) {
  const FormatTables& tables = document.Formats();
  return tables.kept[tables.characters[document.CharFormatAt(position)].kept];
}

bool IsInTable(const Document& document, Position paragraph) {
  const ParaId format = document.ParaFormatAt(document.ParagraphStart(paragraph));
  return document.Formats().paragraphs[format].nesting > 0;
}

bool EndsRow(const Document& document, Position paragraph) {
  return RowEndAt(document, document.ParagraphEnd(paragraph)) != nullptr;
}

/// The paragraph that ends the row of this one; -1 if none does.
Position LastOfRow(const Document& document, Position paragraph) {
  const Position behind = std::min(paragraph + kMostOfRow, document.ParagraphCount());
  for (Position last = paragraph; last < behind; ++last) {
    const bool ends = EndsRow(document, last);
    if (ends && last == paragraph) return last;
    if (!IsInTable(document, last)) return -1;
    if (ends) return last;
  }
  return -1;
}

/// The first of the paragraphs in tables before this one and behind the row above.
Position FirstOfTable(const Document& document, Position paragraph) {
  const Position least = std::max<Position>(0, paragraph - kMostOfRow);
  while (paragraph > least && IsInTable(document, paragraph - 1) &&
         !EndsRow(document, paragraph - 1))
    --paragraph;
  return paragraph;
}

/// The first paragraph of the row that this one ends.
Position FirstOfRow(const Document& document, Position last) {
  if (!IsInTable(document, last)) return last;
  const Position end = document.ParagraphEnd(last);
  Position first = std::max(FirstOfTable(document, last), last + 1 - kMostOfRow);
  while (first < last && end - document.ParagraphStart(first) > kLongestRow) ++first;
  return first;
}

}  // namespace

const Kept* RowEndAt(const Document& document, Position paragraphEnd) {
  const Kept& kept = KeptAt(document, paragraphEnd);
  return kept.kind == Kept::Kind::Row && kept.nested == 0 ? &kept : nullptr;
}

std::optional<TableRow> RowAround(const Document& document, Position position) {
  const Position paragraph = document.ParagraphOf(position);
  const Position last = LastOfRow(document, paragraph);
  if (last < 0) return std::nullopt;
  const Position first = FirstOfRow(document, last);
  if (first > paragraph) return std::nullopt;
  return TableRow{document.ParagraphStart(first), document.ParagraphEnd(last)};
}

Position FirstOfRowsAround(const Document& document, Position position) {
  return document.ParagraphStart(FirstOfTable(document, document.ParagraphOf(position)));
}

namespace {

/// From behind the table above to before the one below.
Selection TextAround(const Document& document, Position position) {
  const Position paragraph = document.ParagraphOf(position);
  const Position start = document.ParagraphStart(paragraph);
  const Position end = document.ParagraphEnd(paragraph);
  Selection around{0, document.Length()};
  if (start > 0 && RowEndAt(document, start - 2)) around.start = start;
  if (start < end && end < document.Length() && RowAround(document, end + 2)) around.end = end;
  return around;
}

std::vector<CellParagraph> ParagraphsOf(const Document& document, const TableRow& row) {
  return FindCellParagraphs(document, {row.start, row.end}, LastBreak::Inside);
}

auto ParagraphAt(const std::vector<CellParagraph>& paragraphs, Position position) {
  return std::prev(std::ranges::upper_bound(paragraphs, position, {}, &CellParagraph::start));
}

}  // namespace

Selection CellAround(const Document& document, Position position) {
  const auto row = RowAround(document, position);
  if (!row) return TextAround(document, position);
  const std::vector<CellParagraph> paragraphs = ParagraphsOf(document, *row);
  const auto goOn = [](const CellParagraph& one, const CellParagraph& next) {
    return !one.endsCell && !one.endsRow && one.level == next.level;
  };
  auto first = ParagraphAt(paragraphs, position);
  auto last = first;
  while (first != paragraphs.begin() && goOn(*std::prev(first), *first)) --first;
  while (std::next(last) != paragraphs.end() && goOn(*last, *std::next(last))) ++last;
  return {first->start, last->end};
}

CellParagraph ParagraphAround(const Document& document, Position position) {
  if (const auto row = RowAround(document, position))
    return *ParagraphAt(ParagraphsOf(document, *row), position);
  const Position paragraph = document.ParagraphOf(position);
  const Position end = document.ParagraphEnd(paragraph);
  return {.start = document.ParagraphStart(paragraph),
          .end = end,
          .ender = document.CharFormatAt(end),
          .format = document.ParaFormatAt(end)};
}

ParaFormat FormatInCell(const Document& document, Position position) {
  const CellParagraph own = ParagraphAround(document, position);
  ParaFormat format = document.Formats().paragraphs[own.format];
  format.nesting = static_cast<std::uint8_t>(std::max<int>(format.nesting, own.level));
  return format;
}

bool IsInUnmarkedRow(const Document& document, Position position) {
  const auto row = RowAround(document, position);
  return row && document.Formats().paragraphs[document.ParaFormatAt(row->end)].nesting == 0;
}

}  // namespace lumenote
