#include "surface/keys/CellKeys.h"

#include <cstddef>
#include <vector>

namespace lumenote {

namespace {

Kept::Kind KindAt(const FormatTables& tables, CharId format) {
  return tables.kept[tables.characters[format].kept].kind;
}

bool IsInTable(const Document& document, int paragraph) {
  if (paragraph < 0 || paragraph >= document.ParagraphCount()) return false;
  const ParaId format = document.ParaFormatAt(document.ParagraphStart(paragraph));
  return document.Formats().paragraphs[format].nesting > 0;
}

/// Where cells begin in a paragraph or behind it, by the cells that end in it.
std::vector<Position> StartsBehindCells(const Document& document, int paragraph) {
  const FormatTables& tables = document.Formats();
  const Position end = document.ParagraphEnd(paragraph);
  std::vector<Position> starts;
  document.ForEachRun(document.ParagraphStart(paragraph), end,
                      [&](Position at, TextView text, CharId format) {
                        if (KindAt(tables, format) != Kept::Kind::Cell) return;
                        for (std::size_t i = 0; i < text.Size(); ++i) starts.push_back(++at);
                      });
  if (KindAt(tables, document.CharFormatAt(end)) == Kept::Kind::Row) starts.push_back(end + 2);
  return starts;
}

}  // namespace

std::optional<Position> NextCell(const Document& document, Position position) {
  for (int paragraph = document.ParagraphOf(position); IsInTable(document, paragraph); ++paragraph)
    for (const Position start : StartsBehindCells(document, paragraph))
      if (start > position) return start;
  return std::nullopt;
}

std::optional<Position> PreviousCell(const Document& document, Position position) {
  int paragraph = document.ParagraphOf(position);
  if (!IsInTable(document, paragraph)) return std::nullopt;
  bool inOwn = true;
  Position first = position;
  for (; IsInTable(document, paragraph); --paragraph) {
    const std::vector<Position> starts = StartsBehindCells(document, paragraph);
    for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
      if (*start > position) continue;
      if (!inOwn) return *start;
      inOwn = false;
    }
    first = document.ParagraphStart(paragraph);
  }
  return first;
}

}  // namespace lumenote
