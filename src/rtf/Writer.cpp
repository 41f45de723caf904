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

WrittenFormats FormatsOf(const Document& document, Position from, Position to,
                         const std::vector<ParaId>& paragraphs, const FinalMark* mark) {
  const FormatTables& tables = document.Formats();
  WrittenFormats formats(tables, tables.heads[document.Mark().head]);
  document.ForEachRun(from, to, [&](Position, TextView, CharId format) { formats.Use(format); });
  if (mark) formats.Use(mark->character);
  const auto hasBullet = [&](ParaId format) { return tables.paragraphs[format].bullet != 0; };
  if (std::any_of(paragraphs.begin(), paragraphs.end(), hasBullet)) formats.UseBullets();
  return formats;
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
  WrittenParagraphs paragraphs(document, from, to, mark);
  const WrittenFormats formats = FormatsOf(document, from, to, paragraphs.formats, mark);
  Output out(sink);
  WriteHead(formats, document.Formats().heads[document.Mark().head], mark != nullptr, out);
  WrittenBody body(document.Formats(), formats, std::move(paragraphs), mark != nullptr, out);
  document.ForEachRun(from, to,
                      [&](Position, TextView text, CharId format) { body.Text(text, format); });
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
