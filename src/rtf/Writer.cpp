// The parts of the source, and what they need to know of each other.
#include "rtf/Writer.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "rtf/Output.h"
#include "rtf/WrittenBody.h"
#include "rtf/WrittenFormats.h"

namespace lumenote {
namespace {

/// The formats of the paragraphs between `from` and `to`, and with `mark` of the last one.
std::vector<ParaId> ParagraphsOf(const Document& document, Position from, Position to,
                                 const FinalMark* mark) {
  std::vector<ParaId> paragraphs;
  document.ForEachParagraph(from, to, [&](ParaId format) { paragraphs.push_back(format); });
  const auto all = static_cast<std::size_t>(document.ParagraphCount());
  if (mark) paragraphs.resize(all, mark->paragraph);
  return paragraphs;
}

WrittenFormats FormatsOf(const Document& document, Position from, Position to,
                         const std::vector<ParaId>& paragraphs, const FinalMark* mark) {
  const FormatTables& tables = document.Formats();
  WrittenFormats formats(tables, tables.heads[document.Mark().head]);
  document.ForEachRun(from, to,
                      [&](Position, std::u16string_view, CharId format) { formats.Use(format); });
  if (mark) formats.Use(mark->character);
  const auto hasBullet = [&](ParaId format) { return tables.paragraphs[format].bullet != 0; };
  if (std::any_of(paragraphs.begin(), paragraphs.end(), hasBullet)) formats.UseBullets();
  return formats;
}

/// The paragraphs with their cells. A row is whole when it leads to its end without leaving the
/// table; what an edit has left of other rows is ordinary text.
WrittenParagraphs WithRows(const Document& document, Position from, Position to,
                           std::vector<ParaId> formats, const FinalMark* mark) {
  const FormatTables& tables = document.Formats();
  WrittenParagraphs paragraphs{.formats = std::move(formats), .inLists = mark != nullptr};
  std::vector<bool>& inRow = paragraphs.inRow;
  inRow.resize(paragraphs.formats.size());
  const auto add = [&](const Kept& kept, std::size_t paragraph) {
    const bool last = kept.kind == Kept::Kind::Row;
    paragraphs.cells.push_back({paragraph, last ? paragraphs.formats[paragraph] : kept.paragraph});
    if (last) inRow[paragraph] = true;
  };
  const bool nothingKept = tables.kept.Size() == 1;  // number 0 stands for nothing
  if (nothingKept) return paragraphs;
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
  if (mark) {
    const Kept& kept = tables.kept[tables.characters[mark->character].kept];
    if (kept.kind == Kept::Kind::Row) add(kept, inRow.size() - 1);
  }
  for (std::size_t i = inRow.size(); i-- > 1;)
    if (inRow[i] && tables.paragraphs[paragraphs.formats[i - 1]].nesting > 0) inRow[i - 1] = true;
  return paragraphs;
}

void WriteHead(const WrittenFormats& formats, const KeptHead& head, bool whole, Output& out) {
  out.Raw("{\\rtf1\\ansi");
  out.Word("ansicpg", head.page);
  out.Word("deff", head.defaultFont);
  out.Words("\\deflang1036");
  formats.WriteFontTable(out);
  formats.WriteColourTable(out);
  if (whole) out.Words(head.source);
  if (head.tables) out.Raw("{\\*\\generator Lumenote;}");
  out.Words("\\viewkind4\\uc1");
}

/// With `mark` a whole document, else a selection.
void WriteText(const Document& document, Position from, Position to, const FinalMark* mark,
               const ByteSink& sink) {
  std::vector<ParaId> paragraphs = ParagraphsOf(document, from, to, mark);
  const WrittenFormats formats = FormatsOf(document, from, to, paragraphs, mark);
  Output out(sink);
  WriteHead(formats, document.Formats().heads[document.Mark().head], mark != nullptr, out);
  WrittenBody body(document.Formats(), formats,
                   WithRows(document, from, to, std::move(paragraphs), mark), out);
  document.ForEachRun(from, to, [&](Position, std::u16string_view text, CharId format) {
    body.Text(text, format);
  });
  body.Finish(mark);
  if (mark) out.Words(document.Formats().heads[mark->head].tail);
  out.Raw("}\r\n");
  out.Flush();
}

std::string Written(const Document& document, Position from, Position to, const FinalMark* mark) {
  std::string source;
  WriteText(document, from, to, mark, [&](std::string_view piece) { source += piece; });
  return source;
}

}  // namespace

void WriteRtf(const Document& document, const ByteSink& sink) {
  const FinalMark mark = document.Mark();
  WriteText(document, 0, document.Length(), &mark, sink);
}

std::string WriteRtf(const Document& document) {
  const FinalMark mark = document.Mark();
  return Written(document, 0, document.Length(), &mark);
}

std::string WriteRtf(const Document& document, Position from, Position to) {
  return Written(document, from, to, nullptr);
}

}  // namespace lumenote
