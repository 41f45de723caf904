#include "html/write/HtmlBody.h"

#include <algorithm>

#include "base/Twips.h"
#include "document/kept/LinkSource.h"
#include "html/words/ListNumbers.h"
#include "html/write/HtmlText.h"

namespace lumenote {
namespace {

/// In base 64.
std::string Encoded(std::string_view bytes) {
  constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const std::size_t count = std::min<std::size_t>(bytes.size() - at, 3);
    unsigned bits = 0;
    for (std::size_t i = 0; i < 3; ++i)
      bits = bits << 8 | (i < count ? static_cast<unsigned char>(bytes[at + i]) : 0u);
    for (std::size_t i = 0; i < 4; ++i)
      text += i <= count ? kDigits[bits >> (18 - 6 * i) & 63] : '=';
  }
  return text;
}

}  // namespace

void HtmlBody::Write(Selection range) {
  Block(FindCellParagraphs(document_, range), 0);
  lists_.Close();
  if (!notes_.empty()) out_ += "<hr>\n" + notes_;
}

/// Writes paragraphs with the tables among them; those of `level` are in no inner table.
void HtmlBody::Block(Paragraphs part, int level) {
  while (!part.empty()) {
    const auto end =
        std::ranges::find_if(part, [=](const CellParagraph& one) { return one.level <= level; });
    const auto inTable = static_cast<std::size_t>(end - part.begin());
    if (inTable > 0)
      Table(part.first(inTable), level + 1);
    else
      Paragraph(part.front());
    part = part.subspan(std::max<std::size_t>(inTable, 1));
  }
}

// --- tables

void HtmlBody::Table(Paragraphs part, int level) {
  const HtmlTable table = FindHtmlTable(part, level, tables_);
  lists_.Close();
  out_ += table.borders ? "<table border=\"1\"" : "<table";
  out_ += " cellspacing=\"0\" cellpadding=\"5\" style=\"border-collapse:collapse\">\n";
  for (const auto& row : table.rows) {
    out_ += "<tr>\n";
    for (const HtmlCell& cell : row)
      if (!cell.covered) Cell(cell, level);
    out_ += "</tr>\n";
  }
  out_ += "</table>\n";
}

void HtmlBody::Cell(const HtmlCell& cell, int level) {
  const auto spans = [this](const char* name, int count) {
    if (count > 1) out_ += name + std::to_string(count) + '"';
  };
  out_ += "<td";
  spans(" colspan=\"", cell.columns);
  spans(" rowspan=\"", cell.rows);
  std::string style;
  DeclareLength("width", cell.width, style);
  out_ += " style=\"" + style + "\">\n";
  Block(cell.content, level);
  lists_.Close();
  out_ += "</td>\n";
}

// --- paragraphs

void HtmlBody::Paragraph(const CellParagraph& paragraph) {
  const ParaFormat& format = tables_.paragraphs[paragraph.format];
  Position start = paragraph.start;
  const std::optional<ListMark> mark = MarkOf(paragraph, start);
  const bool empty = start == paragraph.end;
  const CharFormat around = CommonFormat(start, paragraph);
  if (!mark) lists_.Close();
  if (!mark && empty && IsRule(format)) return void(out_ += "<hr>\n");
  if (mark) lists_.BeginItem(*mark, format.firstIndent + format.hangingIndent);
  out_ += "<p style=\"";
  out_ += mark ? ItemStyle(format, around, tables_) : ParagraphStyle(format, around, tables_);
  out_ += "\">";
  if (empty || !Text(start, paragraph.end, around)) out_ += "<br>";
  out_ += mark ? "</p>" : "</p>\n";
}

/// The format of the first character, of which all characters state what it states; of an empty
/// paragraph, that of its end.
CharFormat HtmlBody::CommonFormat(Position start, const CellParagraph& paragraph) const {
  if (start == paragraph.end) return tables_.characters[paragraph.ender];
  CharFormat common = tables_.characters[document_.CharFormatAt(start)];
  document_.ForEachRun(start, paragraph.end, [&](Position, TextView, CharId format) {
    common.stated &= tables_.characters[format].stated;
  });
  return common;
}

/// The bullet or number before the text, which then begins behind it.
std::optional<ListMark> HtmlBody::MarkOf(const CellParagraph& paragraph,
                                         Position& textStart) const {
  if (tables_.paragraphs[paragraph.format].bullet != 0) return ListMark();
  if (paragraph.start == paragraph.end) return std::nullopt;
  const FieldId field = FieldOf(document_.CharFormatAt(paragraph.start));
  if (tables_.fields[field].kind != KeptField::Kind::ListNumber) return std::nullopt;
  Position end = paragraph.start;
  while (end < paragraph.end && FieldOf(document_.CharFormatAt(end)) == field) ++end;
  const auto number = ReadListNumber(document_.Text(paragraph.start, end), lists_.Style());
  if (!number) return std::nullopt;
  textStart = end;
  return ListMark{number->style, number->number};
}

bool HtmlBody::IsRule(const ParaFormat& format) const {
  return tables_.words.Any(format.words,
                           [this](KeptWord word) { return tables_.names[word.name] == "brdrb"; });
}

// --- text

/// Returns whether anything is shown. Runs that look the same are written as one.
bool HtmlBody::Text(Position from, Position to, const CharFormat& around) {
  const bool same =
      around.font == around_.font && around.size == around_.size && around.stated == around_.stated;
  if (!same) known_.clear();
  around_ = around;
  const std::u16string text = document_.Text(from, to);
  bool shown = false;
  std::size_t start = 0;
  CharId format = document_.CharFormatAt(from);
  const auto finish = [&](std::size_t end) {
    Wear(format);
    shown = Run(text, start, end, format) || shown;
    start = end;
  };
  document_.ForEachRun(from, to, [&](Position at, TextView, CharId next) {
    if (!LooksAs(next, format)) finish(static_cast<std::size_t>(at - from));
    format = next;
  });
  finish(text.size());
  WearNothing();
  if (text.ends_with(u'\v')) out_ += "<br>";
  return shown;
}

/// Whether one run can be made of text in both formats.
bool HtmlBody::LooksAs(CharId one, CharId other) {
  const auto isObject = [this](CharId format) {
    return EmbeddedItem(tables_, tables_.characters[format]) != 0;
  };
  if (one == other) return true;
  return !isObject(one) && !isObject(other) && LinkIn(FieldOf(one)) == LinkIn(FieldOf(other)) &&
         TagsOf(one) == TagsOf(other);
}

/// Returns whether anything is shown.
bool HtmlBody::Run(std::u16string_view text, std::size_t from, std::size_t to, CharId format) {
  const std::size_t before = out_.size();
  while (from < to) {
    const std::size_t object = std::min(text.substr(0, to).find(kObjectCharacter, from), to);
    AppendHtmlText(text, from, object, out_);
    if (object < to) Object(tables_.characters[format]);
    from = object + 1;
  }
  return out_.size() > before;
}

const HtmlTags& HtmlBody::TagsOf(CharId format) {
  const auto [known, isNew] = known_.try_emplace(format);
  if (isNew)
    known->second = lumenote::TagsOf(tables_.characters[format], around_,
                                     LinkIn(FieldOf(format)) != 0, tables_);
  return known->second;
}

/// Opens and closes tags so that text of that format can follow.
void HtmlBody::Wear(CharId format) {
  FieldId link = LinkIn(FieldOf(format));
  if (link != 0 && link != link_ && !MayOpen(link)) link = 0;
  const HtmlTags& tags = TagsOf(format);
  if (link == link_ && tags == worn_) return;
  out_ += worn_.close;
  if (link != link_) {
    if (link_ != 0) out_ += "</a>";
    if (link != 0) {
      out_ += "<a href=";
      AppendHtmlValue(*AddressOf(link), out_);
      out_ += '>';
    }
  }
  out_ += tags.open;
  worn_ = tags;
  link_ = link;
}

void HtmlBody::WearNothing() {
  out_ += worn_.close;
  if (link_ != 0) out_ += "</a>";
  worn_ = {};
  link_ = 0;
}

void HtmlBody::Object(const CharFormat& format) {
  if (const auto note = FootnoteOf(document_, format)) return Footnote(*note, format);
  if (const auto picture = PictureOf(tables_.items[EmbeddedItem(tables_, format)].source))
    Picture(*picture);
}

/// A raised number here, unless the mark is in the text, and the note behind all paragraphs.
void HtmlBody::Footnote(const FootnoteText& note, const CharFormat& format) {
  std::string mark;
  if (note.numbered) mark = std::to_string(++footnotes_);
  const std::string raised = note.numbered ? "<sup>" + mark + "</sup>" : "";
  out_ += (format.effects & kSuperscript) != 0 ? mark : raised;
  std::u16string_view rest = note.text;
  for (bool first = true; first || !rest.empty(); first = false) {
    const std::u16string_view line = rest.substr(0, rest.find(u"\r\n"));
    rest.remove_prefix(std::min(line.size() + 2, rest.size()));
    notes_ += "<p style=\"margin-top:0pt;margin-bottom:0pt;\">";
    if (first && note.numbered) notes_ += raised + ' ';
    AppendHtmlText(line, 0, line.size(), notes_);
    notes_ += "</p>\n";
  }
}

void HtmlBody::Picture(const PictureData& picture) {
  const auto size = [&](const char* name, int twips) {
    if (twips > 0)
      out_ += name + std::to_string(std::max(static_cast<int>(twips / kTwipsPerPixel), 1)) + "\"";
  };
  out_ += picture.type == PictureType::Png ? "<img src=\"data:image/png;base64,"
                                           : "<img src=\"data:image/jpeg;base64,";
  out_ += Encoded(picture.bytes) + "\" alt=\"\"";
  size(" width=\"", picture.width);
  size(" height=\"", picture.height);
  out_ += '>';
}

FieldId HtmlBody::FieldOf(CharId format) const {
  return tables_.kept[tables_.characters[format].kept].field;
}

/// The innermost link around a field, or the field itself; 0 if there is none.
FieldId HtmlBody::LinkIn(FieldId field) {
  while (field != 0 && !AddressOf(field)) field = tables_.fields[field].outer;
  return field;
}

bool HtmlBody::MayOpen(FieldId link) {
  return linked_.insert(link).second || repeats_.Allow(AddressOf(link)->size());
}

/// Reads each field's source only once, as each of its runs asks.
const std::optional<std::u16string>& HtmlBody::AddressOf(FieldId field) {
  const auto [known, isNew] = addresses_.try_emplace(field);
  if (isNew) known->second = LinkAddress(tables_.fields[field].opening);
  return known->second;
}

}  // namespace lumenote
