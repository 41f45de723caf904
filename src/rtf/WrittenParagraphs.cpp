// Which cells and paragraphs are parts of whole rows.
#include "rtf/WrittenParagraphs.h"

namespace lumenote {
namespace {

/// Going backwards through a text: the rows whose ends have been passed and whose beginnings have
/// not, by their nesting, the innermost last.
class OpenRows {
 public:
  int End(int nesting) {
    LeaveDeeperThan(nesting);
    if (open_.empty() || open_.back() < nesting) open_.push_back(nesting);
    return nesting;
  }
  /// The row of a paragraph that calls itself so deep: deeper than the innermost row is in that
  /// one. A row that does not call itself part of a table is one paragraph.
  int Paragraph(int nesting) {
    LeaveDeeperThan(nesting > 0 ? nesting : WrittenParagraphs::kNoRow);
    if (Innermost() == 0) open_.pop_back();
    return Innermost();
  }
  /// The same of a cell, which may tell nothing of its depth.
  int Cell(int nesting) {
    if (nesting > 0) LeaveDeeperThan(nesting);
    return Innermost();
  }

 private:
  void LeaveDeeperThan(int nesting) {
    while (!open_.empty() && open_.back() > nesting) open_.pop_back();
  }
  int Innermost() const { return open_.empty() ? WrittenParagraphs::kNoRow : open_.back(); }

  std::vector<int> open_;
};

}  // namespace

WrittenParagraphs::WrittenParagraphs(const Document& document, Position from, Position to,
                                     const FinalMark* mark) {
  document.ForEachParagraph(from, to, [&](ParaId format) { formats.push_back(format); });
  if (mark) formats.resize(static_cast<std::size_t>(document.ParagraphCount()), mark->paragraph);
  rows.resize(formats.size(), kNoRow);
  const FormatTables& tables = document.Formats();
  const bool nothingKept = tables.kept.Size() == 1;  // number 0 stands for nothing
  if (nothingKept) return;
  FindCells(document, from, to, mark);
  FindRows(tables);
}

void WrittenParagraphs::FindCells(const Document& document, Position from, Position to,
                                  const FinalMark* mark) {
  const FormatTables& tables = document.Formats();
  const auto add = [&](const Kept& kept, std::size_t paragraph) {
    const bool endsRow = kept.kind == Kept::Kind::Row;
    cells.push_back({paragraph, endsRow ? formats[paragraph] : kept.paragraph, endsRow});
  };
  const Position first = document.ParagraphOf(from);
  document.ForEachRun(from, to, [&](Position at, std::u16string_view text, CharId format) {
    const Kept& kept = tables.kept[tables.characters[format].kept];
    const bool cell = kept.kind == Kept::Kind::Cell;
    if (!cell && kept.kind != Kept::Kind::Row) return;
    const char16_t end = cell ? u'\t' : u'\r';
    for (std::size_t i = text.find(end); i != text.npos; i = text.find(end, i + 1)) {
      const Position paragraph = document.ParagraphOf(at + static_cast<Position>(i)) - first;
      add(kept, static_cast<std::size_t>(paragraph));
    }
  });
  if (!mark) return;
  const Kept& kept = tables.kept[tables.characters[mark->character].kept];
  if (kept.kind == Kept::Kind::Row) add(kept, formats.size() - 1);
}

void WrittenParagraphs::FindRows(const FormatTables& tables) {
  const auto nesting = [&](ParaId format) { return int{tables.paragraphs[format].nesting}; };
  OpenRows open;
  auto cell = cells.rbegin();
  for (std::size_t i = formats.size(); i-- > 0;) {
    const auto here = [&] { return cell != cells.rend() && cell->paragraph == i; };
    const int depth = nesting(formats[i]);
    rows[i] = here() && cell->endsRow ? open.End(depth) : open.Paragraph(depth);
    for (; here(); ++cell) cell->row = cell->endsRow ? rows[i] : open.Cell(nesting(cell->format));
  }
}

}  // namespace lumenote
