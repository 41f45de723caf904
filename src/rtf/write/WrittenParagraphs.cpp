// Finds the cells and paragraphs of complete rows.
#include "rtf/write/WrittenParagraphs.h"

#include <algorithm>
#include <utility>

#include "document/KeptEdits.h"

namespace lumenote {

int OpenRows::End(int nesting) {
  LeaveDeeperThan(nesting);
  if (open_.empty() || open_.back() < nesting) open_.push_back(nesting);
  return nesting;
}

int OpenRows::Paragraph(int nesting) {
  LeaveDeeperThan(nesting > 0 ? nesting : WrittenParagraphs::kNoRow);
  if (Innermost() == 0) open_.pop_back();
  return Innermost();
}

int OpenRows::Cell(int nesting) {
  LeaveDeeperThan(std::max(nesting, 1));
  return nesting > 1 && Innermost() < 2 ? WrittenParagraphs::kNoRow : Innermost();
}

void OpenRows::LeaveDeeperThan(int nesting) {
  while (!open_.empty() && open_.back() > nesting) open_.pop_back();
}

ParagraphScan::ParagraphScan(const Document& document, Position from, const FinalMark* mark)
    : document_(document), mark_(mark), first_(document.ParagraphOf(from)) {
  const FormatTables& tables = document.Formats();
  const KeptId opening = tables.characters[document.CharFormatAt(from)].kept;
  if (!mark && StartsSection(tables, opening)) found.outside = opening;
  last_ = found.outside;
}

void ParagraphScan::Take(Position from, Position to) {
  auto index = static_cast<std::size_t>(document_.ParagraphOf(from) - first_);
  document_.ForEachParagraph(from, to, [&](ParaId format) {
    if (index++ == found.formats.size()) AddParagraph(format);
  });
  if (!IsAnythingKept()) return;
  document_.ForEachRun(
      from, to, [this](Position at, TextView text, CharId format) { FindKept(at, text, format); });
}

void ParagraphScan::TakeEnd() {
  const auto all = static_cast<std::size_t>(document_.ParagraphCount());
  while (mark_ && found.formats.size() < all) AddParagraph(mark_->paragraph);
  rows_ = found.formats.size();
  if (!IsAnythingKept()) rows_ = 0;
  if (mark_ && IsAnythingKept()) FindKept(document_.Length(), u"\r", mark_->character);
  cells_ = found.cells.size();
}

void ParagraphScan::AddParagraph(ParaId format) {
  found.formats.push_back(format);
  found.rowDepths.push_back(WrittenParagraphs::kNoRow);
}

void ParagraphScan::FindKept(Position at, TextView text, CharId format) {
  const FormatTables& tables = document_.Formats();
  const KeptId id = tables.characters[format].kept;
  const bool again = std::exchange(last_, id) == id;
  const Kept& kept = tables.kept[id];
  const auto paragraph = [&](std::size_t i) {
    return static_cast<std::size_t>(document_.ParagraphOf(at + static_cast<Position>(i)) - first_);
  };
  if (!again && tables.items.Any(kept.before, IsBreak)) found.leading.push_back({paragraph(0), id});
  const bool endsRow = kept.kind == Kept::Kind::Row;
  if (!endsRow && kept.kind != Kept::Kind::Cell) return;
  const char end = endsRow ? '\r' : '\t';
  for (std::size_t i = text.Find(end, 0); i < text.Size(); i = text.Find(end, i + 1)) {
    const std::size_t index = paragraph(i);
    const ParaId own = endsRow ? found.formats[index] : kept.paragraph;
    const int stated = tables.paragraphs[own].nesting;
    found.cells.push_back(
        {index, own, kept.nested ? std::max(stated, 2) : std::min(stated, 1), endsRow});
  }
}

bool ParagraphScan::FindRows(std::size_t paragraphs) {
  for (; rows_ > 0 && paragraphs > 0; --paragraphs) FindRow(--rows_);
  return rows_ > 0;
}

void ParagraphScan::FindRow(std::size_t i) {
  const auto here = [&] { return cells_ > 0 && found.cells[cells_ - 1].paragraph == i; };
  ParaId format = found.formats[i];
  const int stated = document_.Formats().paragraphs[format].nesting;
  const bool ends = here() && found.cells[cells_ - 1].endsRow;
  int depth = ends ? open_.End(found.cells[cells_ - 1].nesting) : open_.Paragraph(stated);
  found.rowDepths[i] = depth;
  for (; here(); --cells_) {
    WrittenParagraphs::Cell& cell = found.cells[cells_ - 1];
    const int own = cell.endsRow ? depth : open_.Cell(cell.nesting);
    cell.whole = own != WrittenParagraphs::kNoRow;
    if (cell.whole) {
      format = cell.format;
      depth = own;
    }
    cell.format = format;
    cell.rowDepth = depth;
  }
}

}  // namespace lumenote
