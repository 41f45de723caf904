#include "html/write/HtmlBody.h"

#include <algorithm>

#include "document/kept/LinkSource.h"
#include "document/kept/PictureSource.h"
#include "document/kept/RowSource.h"
#include "html/words/ListNumbers.h"
#include "html/words/Pixels.h"
#include "html/write/HtmlText.h"

namespace lumenote {
namespace {

constexpr char16_t kObject = u'\uFFFC';

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

/// The last definition of a row among the items; null if there is none.
const KeptItem* DefinitionIn(const FormatTables& tables, ItemId items) {
  const KeptItem* definition = nullptr;
  tables.items.ForEach(items, [&](const KeptItem& item) {
    if (item.kind == KeptItem::Kind::Row) definition = &item;
  });
  return definition;
}

}  // namespace

void HtmlBody::Write(Selection range) {
  const Paragraphs paragraphs = FindHtmlParagraphs(document_, range);
  const auto ends = [](const HtmlParagraph& one) { return one.endsCell || one.endsRow; };
  bool rowBegins = true;
  for (auto at = paragraphs.begin(); at != paragraphs.end(); ++at) {
    if (at->inRow && rowBegins) {
      const auto end = std::ranges::find_if(at, paragraphs.end(), &HtmlParagraph::endsRow);
      BeginRow(*end, static_cast<std::size_t>(std::count_if(at, end + 1, ends)));
    } else if (!at->inRow) {
      EndTable();
    }
    Paragraph(*at);
    rowBegins = at->endsRow || !at->inRow;
    if (!at->inRow || !ends(*at)) continue;
    lists_.Close();
    out_ += "</td>\n";
    if (at->endsRow)
      out_ += "</tr>\n";
    else
      BeginCell();
  }
  lists_.Close();
  EndTable();
}

// --- tables

void HtmlBody::BeginRow(const HtmlParagraph& end, std::size_t cells) {
  lists_.Close();
  const Kept& kept = tables_.kept[tables_.characters[end.ender].kept];
  const KeptItem* const definition = DefinitionIn(tables_, kept.self);
  edges_ = definition && definition->cells.size() == cells ? definition->cells
                                                           : std::vector<std::int32_t>();
  cell_ = 0;
  if (!inTable_) {
    const bool borders = definition && HasBorders(definition->source);
    out_ += borders ? "<table border=\"1\"" : "<table";
    out_ += " cellspacing=\"0\" cellpadding=\"5\" style=\"border-collapse:collapse\">\n";
  }
  inTable_ = true;
  out_ += "<tr>\n";
  BeginCell();
}

void HtmlBody::BeginCell() {
  out_ += "<td";
  if (cell_ < edges_.size()) {
    const std::int32_t left = cell_ > 0 ? edges_[cell_ - 1] : 0;
    std::string style;
    DeclareLength("width", std::max(edges_[cell_] - left, 1), style);
    out_ += " style=\"" + style + "\"";
  }
  out_ += ">\n";
  ++cell_;
}

void HtmlBody::EndTable() {
  if (inTable_) out_ += "</table>\n";
  inTable_ = false;
}

// --- paragraphs

void HtmlBody::Paragraph(const HtmlParagraph& paragraph) {
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
  if (empty)
    out_ += "<br>";
  else
    Text(start, paragraph.end, around);
  out_ += mark ? "</p>" : "</p>\n";
}

/// The format of the first character, of which all characters state what it states; of an empty
/// paragraph, that of its end.
CharFormat HtmlBody::CommonFormat(Position start, const HtmlParagraph& paragraph) const {
  if (start == paragraph.end) return tables_.characters[paragraph.ender];
  CharFormat common = tables_.characters[document_.CharFormatAt(start)];
  document_.ForEachRun(start, paragraph.end, [&](Position, TextView, CharId format) {
    common.stated &= tables_.characters[format].stated;
  });
  return common;
}

/// The bullet or number before the text, which then begins behind it.
std::optional<ListMark> HtmlBody::MarkOf(const HtmlParagraph& paragraph,
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

void HtmlBody::Text(Position from, Position to, const CharFormat& around) {
  const bool same =
      around.font == around_.font && around.size == around_.size && around.stated == around_.stated;
  if (!same) known_.clear();
  around_ = around;
  const std::u16string text = document_.Text(from, to);
  document_.ForEachRun(from, to, [&](Position at, TextView run, CharId format) {
    const auto start = static_cast<std::size_t>(at - from);
    Wear(format);
    Run(text, start, start + run.Size(), format);
  });
  WearNothing();
  if (text.ends_with(u'\v')) out_ += "<br>";
}

void HtmlBody::Run(std::u16string_view text, std::size_t from, std::size_t to, CharId format) {
  while (from < to) {
    const std::size_t object = std::min(text.substr(0, to).find(kObject, from), to);
    AppendHtmlText(text, from, object, out_);
    if (object < to) Picture(tables_.characters[format]);
    from = object + 1;
  }
}

/// Opens and closes tags so that text of that format can follow.
void HtmlBody::Wear(CharId format) {
  FieldId link = LinkIn(FieldOf(format));
  if (link != 0 && link != link_ && !MayOpen(link)) link = 0;
  const auto [known, isNew] = known_.try_emplace(format);
  HtmlTags& tags = known->second;
  if (isNew) tags = TagsOf(tables_.characters[format], around_, link != 0, tables_);
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

void HtmlBody::Picture(const CharFormat& format) {
  const Kept& kept = tables_.kept[format.kept];
  if (kept.kind != Kept::Kind::Embedded) return;
  const auto picture = PictureOf(tables_.items[kept.self].source);
  if (!picture) return;
  const auto size = [&](const char* name, int twips) {
    if (twips > 0) out_ += name + std::to_string(std::max(twips / kTwipsPerPixel, 1)) + "\"";
  };
  out_ += picture->type == PictureType::Png ? "<img src=\"data:image/png;base64,"
                                            : "<img src=\"data:image/jpeg;base64,";
  out_ += Encoded(picture->bytes) + "\" alt=\"\"";
  size(" width=\"", picture->width);
  size(" height=\"", picture->height);
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
