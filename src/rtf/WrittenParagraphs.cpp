// Which cells and paragraphs are parts of whole rows.
#include "rtf/WrittenParagraphs.h"

#include <algorithm>
#include <utility>

#include "rtf/KeptWords.h"

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
  /// The same of a cell. One of a nested row is part of no other.
  int Cell(int nesting) {
    LeaveDeeperThan(std::max(nesting, 1));
    return nesting > 1 && Innermost() < 2 ? WrittenParagraphs::kNoRow : Innermost();
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
  rowDepths.resize(formats.size(), kNoRow);
  const FormatTables& tables = document.Formats();
  const bool nothingKept = tables.kept.Size() == 1;  // number 0 stands for nothing
  if (nothingKept) return;
  FindKept(document, from, to, mark);
  FindRows(tables);
}

void WrittenParagraphs::FindKept(const Document& document, Position from, Position to,
                                 const FinalMark* mark) {
  const FormatTables& tables = document.Formats();
  const Position first = document.ParagraphOf(from);
  const KeptId opening = tables.characters[document.CharFormatAt(from)].kept;
  if (!mark && BeginsPlace(tables.kept[opening].before)) outside = opening;
  KeptId last = outside;
  const auto find = [&](Position at, TextView text, CharId format) {
    const KeptId id = tables.characters[format].kept;
    const bool again = std::exchange(last, id) == id;
    const Kept& kept = tables.kept[id];
    const auto paragraph = [&](std::size_t i) {
      return static_cast<std::size_t>(document.ParagraphOf(at + static_cast<Position>(i)) - first);
    };
    if (!again && BeginsParagraph(kept.before)) leads.push_back({paragraph(0), id});
    const bool endsRow = kept.kind == Kept::Kind::Row;
    if (!endsRow && kept.kind != Kept::Kind::Cell) return;
    const char end = endsRow ? '\r' : '\t';
    for (std::size_t i = text.Find(end, 0); i < text.Size(); i = text.Find(end, i + 1)) {
      const std::size_t index = paragraph(i);
      const ParaId own = endsRow ? formats[index] : kept.paragraph;
      const int told = tables.paragraphs[own].nesting;
      const bool nested = kept.instead.starts_with("\\nestcell");
      cells.push_back({index, own, nested ? std::max(told, 2) : std::min(told, 1), endsRow});
    }
  };
  document.ForEachRun(from, to, find);
  if (mark) find(document.Length(), u"\r", mark->character);
}

void WrittenParagraphs::FindRows(const FormatTables& tables) {
  OpenRows open;
  auto cell = cells.rbegin();
  for (std::size_t i = formats.size(); i-- > 0;) {
    const auto here = [&] { return cell != cells.rend() && cell->paragraph == i; };
    const int told = tables.paragraphs[formats[i]].nesting;
    rowDepths[i] = here() && cell->endsRow ? open.End(cell->nesting) : open.Paragraph(told);
    ParaId format = formats[i];
    int depth = rowDepths[i];
    for (; here(); ++cell) {
      const int own = cell->endsRow ? depth : open.Cell(cell->nesting);
      cell->stands = own != kNoRow;
      if (cell->stands) {
        format = cell->format;
        depth = own;
      }
      cell->format = format;
      cell->rowDepth = depth;
    }
  }
}

}  // namespace lumenote
