// The stages of writing and what each passes to the next.
#include "rtf/write/RtfWriter.h"

#include <algorithm>
#include <utility>

namespace lumenote {
namespace {

void WriteItems(const ChainTable<KeptItem>& items, ItemId first, Output& out) {
  items.ForEach(first, [&](const KeptItem& item) { out.Words(item.source); });
}

void WriteHead(const WrittenFormats& formats, const FormatTables& tables, const KeptHead& head,
               CopiedTables* part, Output& out) {
  out.Raw("{\\rtf1\\ansi");
  out.Word("ansicpg", head.page);
  if (formats.DefaultFont() >= 0) out.Word("deff", formats.DefaultFont());
  formats.WriteFontTable(out);
  formats.WriteColourTable(out);
  if (part)
    out.Words(part->Groups());
  else
    WriteItems(tables.items, head.items, out);
  if (head.tables) out.Raw(head.generator ? "{\\*\\generator Lumenote;}" : "{\\*\\lumenote}");
  out.Words("\\viewkind4\\uc1");
}

}  // namespace

RtfWriter::RtfWriter(const Document& document, Selection range, std::optional<FinalMark> mark,
                     const ByteSink& sink)
    : document_(document),
      range_(document.SnapOutward(range.start, range.end)),
      mark_(mark),
      at_(range_.start),
      scan_(document, range_.start, mark_ ? &*mark_ : nullptr),
      formats_(document.Formats(), document.Mark().head, mark_.has_value()),
      out_(sink, document.Formats().heads[document.Mark().head].page) {
  if (!mark_) part_.emplace(document.Formats(), document.Mark().head);
}

bool RtfWriter::Step(Position units) {
  if (out_.HandOn()) return out_.Waits() || stage_ != Stage::Done;
  switch (stage_) {
    case Stage::Scan:
      Scan(Piece(units));
      if (at_ == range_.end) Begin();
      break;
    case Stage::Rows:
      if (!scan_.FindRows(static_cast<std::size_t>(units))) stage_ = Stage::Write;
      break;
    case Stage::Write:
      Write(Piece(units));
      if (at_ == range_.end) Finish();
      break;
    case Stage::Done:
      break;
  }
  return out_.Waits() || stage_ != Stage::Done;
}

Selection RtfWriter::Piece(Position units) {
  const Position from = at_;
  at_ = units < range_.end - from ? document_.SnapForward(from + units) : range_.end;
  return {from, at_};
}

void RtfWriter::Scan(Selection piece) {
  std::size_t known = scan_.found.formats.size();
  scan_.Take(piece.start, piece.end);
  const std::vector<ParaId>& paragraphs = scan_.found.formats;
  for (; known < paragraphs.size(); ++known) {
    bullets_ = bullets_ || document_.Formats().paragraphs[paragraphs[known]].bullet != 0;
    if (part_) part_->UseParagraph(paragraphs[known]);
  }
  document_.ForEachRun(piece.start, piece.end, [this](Position, TextView, CharId format) {
    formats_.Use(format);
    if (part_) part_->UseCharacter(format);
  });
}

/// The first pass is complete.
void RtfWriter::Begin() {
  scan_.TakeEnd();
  if (mark_) {
    formats_.Use(mark_->character);
    bullets_ = bullets_ || document_.Formats().paragraphs[mark_->paragraph].bullet != 0;
  }
  if (bullets_) formats_.UseBullets();
  at_ = range_.start;
  stage_ = Stage::Rows;
}

void RtfWriter::Write(Selection piece) {
  const FormatTables& tables = document_.Formats();
  if (!body_) {
    CopiedTables* const part = part_ ? &*part_ : nullptr;
    WriteHead(formats_, tables, tables.heads[document_.Mark().head], part, out_);
    body_.emplace(tables, formats_, std::move(scan_.found), part, out_);
  }
  document_.ForEachRun(piece.start, piece.end, [this](Position, TextView text, CharId format) {
    body_->Text(text, format);
  });
}

void RtfWriter::Finish() {
  body_->Finish(mark_ ? &*mark_ : nullptr);
  const FormatTables& tables = document_.Formats();
  if (mark_) WriteItems(tables.items, tables.heads[mark_->head].tail, out_);
  out_.Raw("}\r\n");
  out_.Flush();
  stage_ = Stage::Done;
}

}  // namespace lumenote
