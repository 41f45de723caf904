#include "document/tables/CellParagraphs.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace lumenote {
namespace {

const Kept& KeptOf(const FormatTables& tables, CharId format) {
  return tables.kept[tables.characters[format].kept];
}

/// The level of the table that a cell or row belongs to.
int LevelOf(const Kept& ender, const ParaFormat& format) {
  return ender.nested != 0 ? std::max<int>(format.nesting, 2) : 1;
}

/// Collects the paragraphs, run by run.
class ParagraphFinder {
 public:
  ParagraphFinder(const Document& document, Position start) : document_(document), start_(start) {}

  void Take(Position at, TextView text, CharId format) {
    const Kept& kept = KeptOf(document_.Formats(), format);
    const bool cell = kept.kind == Kept::Kind::Cell;
    const char ender = cell ? '\t' : '\r';
    for (std::size_t i = text.Find(ender, 0); i < text.Size(); i = text.Find(ender, i + 1))
      End(at + static_cast<Position>(i), format, kept, cell);
  }
  /// The rest ends with a row if `mayEndRow` and the break there ends one.
  std::vector<CellParagraph> Finish(Position end, bool mayEndRow) {
    const CharId ender = document_.CharFormatAt(end);
    const Kept& kept = KeptOf(document_.Formats(), ender);
    const bool row = mayEndRow && kept.kind == Kept::Kind::Row;
    const ParaId format = document_.ParaFormatAt(end);
    const ParaFormat& look = document_.Formats().paragraphs[format];
    found_.push_back({.start = start_,
                      .end = end,
                      .ender = ender,
                      .format = format,
                      .endsRow = row,
                      .level = row ? LevelOf(kept, look) : look.nesting});
    return std::move(found_);
  }

 private:
  void End(Position at, CharId format, const Kept& kept, bool cell) {
    const FormatTables& tables = document_.Formats();
    const ParaId paragraph = cell ? kept.paragraph : document_.ParaFormatAt(at);
    const bool row = kept.kind == Kept::Kind::Row;
    const ParaFormat& look = tables.paragraphs[paragraph];
    found_.push_back({.start = start_,
                      .end = at,
                      .ender = format,
                      .format = paragraph,
                      .endsCell = cell,
                      .endsRow = row,
                      .level = cell || row ? LevelOf(kept, look) : look.nesting});
    start_ = at + (cell ? 1 : 2);
  }

  const Document& document_;
  Position start_;
  std::vector<CellParagraph> found_;
};

/// Corrects the levels to those of rows that end in the range. `open` is the level of the rows that
/// end further on.
void FindRows(std::vector<CellParagraph>& paragraphs) {
  int open = 0;
  for (auto paragraph = paragraphs.rbegin(); paragraph != paragraphs.rend(); ++paragraph) {
    const int level = paragraph->level;
    if (paragraph->endsRow && level <= std::min(open + 1, kDeepestTable))
      open = level;
    else if (paragraph->endsRow)
      paragraph->endsRow = false;
    else
      open = std::min(open, level);
    paragraph->level = open;
  }
}

/// Makes cells outside of rows ordinary text with tabs.
void JoinLostCells(std::vector<CellParagraph>& paragraphs, const FormatTables& tables) {
  const auto isLost = [&](const CellParagraph& one) {
    const Kept& kept = KeptOf(tables, one.ender);
    return one.endsCell && one.level != LevelOf(kept, tables.paragraphs[one.format]);
  };
  std::optional<Position> start;
  for (CellParagraph& paragraph : paragraphs) {
    if (start) paragraph.start = *std::exchange(start, {});
    if (isLost(paragraph)) start = paragraph.start;
  }
  std::erase_if(paragraphs, isLost);
}

}  // namespace

std::vector<CellParagraph> FindCellParagraphs(const Document& document, Selection range,
                                              LastBreak last) {
  ParagraphFinder finder(document, range.start);
  document.ForEachRun(range.start, range.end, [&](Position at, TextView text, CharId format) {
    finder.Take(at, text, format);
  });
  std::vector<CellParagraph> paragraphs = finder.Finish(range.end, last == LastBreak::Inside);
  FindRows(paragraphs);
  JoinLostCells(paragraphs, document.Formats());
  return paragraphs;
}

}  // namespace lumenote
