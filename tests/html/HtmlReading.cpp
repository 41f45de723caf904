#include "HtmlReading.h"

#include "base/Strings.h"
#include "html/source/HtmlBytes.h"

namespace lumenote {
namespace {

const CharFormat kBase{.size = 20};

void Name(std::string& to, std::string_view name, std::int64_t value, std::int64_t usual) {
  if (value != usual) to.append(" ").append(name).append(std::to_string(value));
}

std::string Named(const CharFormat& format, const FormatTables& tables) {
  std::string names;
  constexpr std::string_view kEffects[] = {"b", "i", "s", "ss", "caps", "smallcaps", "hidden"};
  for (int i = 0; i < 7; ++i)
    if (format.effects >> i & 1) names.append(" ").append(kEffects[i]);
  if (format.effects & kSuperscript) names += " sup";
  if (format.effects & kSubscript) names += " sub";
  if (format.stated & kStatesFont) names += " " + ToUtf8(tables.fonts[format.font].name);
  Name(names, "u", static_cast<int>(format.underline), 0);
  if (format.stated & kStatesSize) Name(names, "", format.size, 0);
  Name(names, "colour", format.colour, kAutoColour);
  Name(names, "back", format.highlight, kAutoColour);
  Name(names, "spacing", format.spacing, 0);
  Name(names, "offset", format.offset, 0);
  const FieldId field = tables.kept[format.kept].field;
  if (field != 0) names += " " + tables.fields[field].opening;
  return names.empty() ? names : "[" + names.substr(1) + "]";
}

std::string Named(const ParaFormat& format, const FormatTables& tables) {
  std::string names;
  Name(names, "left", format.firstIndent + format.hangingIndent, 0);
  Name(names, "hanging", format.hangingIndent, 0);
  Name(names, "right", format.rightIndent, 0);
  Name(names, "before", format.spaceBefore, 0);
  Name(names, "after", format.spaceAfter, 0);
  Name(names, "rule", static_cast<int>(format.lineRule), 0);
  Name(names, "lines", format.lineSpacing, 0);
  Name(names, "align", static_cast<int>(format.alignment), 0);
  Name(names, "bullet", format.bullet, 0);
  Name(names, "rtl", format.rightToLeft, 0);
  Name(names, "nesting", format.nesting, 0);
  tables.words.ForEach(format.words,
                       [&](KeptWord word) { names += " " + tables.names[word.name]; });
  return names.empty() ? names : "(" + names.substr(1) + ")";
}

}  // namespace

Document ReadPage(std::string_view html, HtmlTarget target) {
  Document document;
  document.Replace(0, 0, ReadHtml(DecodeHtml(html), document.Formats(), target, kBase));
  return document;
}

std::string FormatsOf(const Document& document) {
  const FormatTables& tables = document.Formats();
  const auto paragraph = [&](ParaId id) { return Named(tables.paragraphs[id], tables); };
  std::string all;
  document.ForEachRun(0, document.Length(), [&](Position at, TextView text, CharId format) {
    for (std::size_t i = 0; i < text.Size(); ++i, ++at) {
      if (text[i] == u'\r') all += "¶" + paragraph(document.ParaFormatAt(at));
      if (text[i] == u'\t') all += "⇥";
      if (text[i] >= u' ') all += ToUtf8(std::u16string(1, text[i]));
    }
    all += Named(tables.characters[format], tables);
  });
  return all + paragraph(document.Mark().paragraph);
}

}  // namespace lumenote
