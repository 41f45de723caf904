#include "html/write/HtmlParagraphs.h"

#include <optional>
#include <utility>

namespace lumenote {
namespace {

const Kept& KeptOf(const FormatTables& tables, CharId format) {
  return tables.kept[tables.characters[format].kept];
}

/// Collects the paragraphs, run by run.
class ParagraphFinder {
 public:
  ParagraphFinder(const Document& document, Position start) : document_(document), start_(start) {}

  void Take(Position at, TextView text, CharId format) {
    const Kept& kept = KeptOf(document_.Formats(), format);
    const bool cell = kept.kind == Kept::Kind::Cell && kept.nested == 0;
    const char ender = cell ? '\t' : '\r';
    for (std::size_t i = text.Find(ender, 0); i < text.Size(); i = text.Find(ender, i + 1))
      End(at + static_cast<Position>(i), format, kept, cell);
  }
  std::vector<HtmlParagraph> Finish(Position end) {
    found_.push_back({.start = start_,
                      .end = end,
                      .ender = document_.CharFormatAt(end),
                      .format = document_.ParaFormatAt(end)});
    return std::move(found_);
  }

 private:
  void End(Position at, CharId format, const Kept& kept, bool cell) {
    found_.push_back({.start = start_,
                      .end = at,
                      .ender = format,
                      .format = cell ? kept.paragraph : document_.ParaFormatAt(at),
                      .endsCell = cell,
                      .endsRow = kept.kind == Kept::Kind::Row && kept.nested == 0});
    start_ = at + (cell ? 1 : 2);
  }

  const Document& document_;
  Position start_;
  std::vector<HtmlParagraph> found_;
};

/// Marks the paragraphs before each end of a row that lie in the table.
void FindRows(std::vector<HtmlParagraph>& paragraphs, const FormatTables& tables) {
  bool inRow = false;
  for (auto paragraph = paragraphs.rbegin(); paragraph != paragraphs.rend(); ++paragraph) {
    const bool inTable = tables.paragraphs[paragraph->format].nesting > 0;
    inRow = paragraph->endsRow || (inRow && (inTable || paragraph->endsCell));
    paragraph->inRow = inRow;
  }
}

/// Makes cells outside of rows ordinary text with tabs.
void JoinLostCells(std::vector<HtmlParagraph>& paragraphs) {
  std::optional<Position> start;
  for (HtmlParagraph& paragraph : paragraphs) {
    if (start) paragraph.start = *std::exchange(start, {});
    if (paragraph.endsCell && !paragraph.inRow) start = paragraph.start;
  }
  std::erase_if(paragraphs, [](const HtmlParagraph& paragraph) {
    return paragraph.endsCell && !paragraph.inRow;
  });
}

}  // namespace

std::vector<HtmlParagraph> FindHtmlParagraphs(const Document& document, Selection range) {
  ParagraphFinder finder(document, range.start);
  document.ForEachRun(range.start, range.end, [&](Position at, TextView text, CharId format) {
    finder.Take(at, text, format);
  });
  std::vector<HtmlParagraph> paragraphs = finder.Finish(range.end);
  FindRows(paragraphs, document.Formats());
  JoinLostCells(paragraphs);
  return paragraphs;
}

}  // namespace lumenote
