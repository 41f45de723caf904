#include "Reading.h"

#include <sstream>

#include "base/Strings.h"
#include "rtf/words/CharacterWords.h"
#include "rtf/words/ParagraphWords.h"
#include "rtf/write/RtfWriter.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

/// Collects words between pointed brackets.
class Words {
 public:
  std::ostream& Next() { return text_ << (first_ ? (first_ = false, "") : " "); }
  void Add(bool present, std::string_view word) {
    if (present) Next() << word;
  }
  void Number(std::int64_t value, std::int64_t standard, std::string_view name) {
    if (value != standard) Next() << name << value;
  }
  std::string Text() const { return text_.str() + '>'; }

 private:
  std::ostringstream text_{"<", std::ios::ate};
  bool first_ = true;
};

void AddKept(WordsId first, const FormatTables& tables, Words& words) {
  std::string source;
  tables.words.ForEach(first, [&](KeptWord word) {
    if (word.kind != KeptWord::Kind::Numbering) source += '\\';
    source += tables.names[word.name];
    if (word.kind == KeptWord::Kind::Numbered) source += std::to_string(word.number);
  });
  words.Add(!source.empty(), source);
}

std::string Shown(const CharFormat& format, const FormatTables& tables) {
  Words words;
  const FontFace& face = tables.fonts[format.font];
  words.Add(!face.name.empty(), ToUtf8(face.name));
  words.Number(face.charset, 0, "charset");
  words.Number(face.family, 0, "family");
  words.Number(face.pitch, 0, "pitch");
  for (const EffectWord& word : kEffectWords)
    words.Add((format.effects & word.effect) != 0, word.name);
  words.Add((format.effects & kSuperscript) != 0, "super");
  words.Add((format.effects & kSubscript) != 0, "sub");
  words.Number(static_cast<int>(format.underline), 0, "ul");
  words.Number(format.size, 24, "fs");
  words.Number(format.offset, 0, "up");
  for (const NumberWord& word : kNumberWords) {
    const std::int64_t number = word.get(format);
    if (number == word.get(CharFormat())) continue;
    words.Next() << word.name << (word.kind == NumberWord::Kind::Number ? std::dec : std::hex)
                 << number << std::dec;
  }
  const Kept& kept = tables.kept[format.kept];
  const auto add = [&](const KeptItem& item) { words.Add(true, item.source); };
  tables.items.ForEach(kept.before, add);
  tables.items.ForEach(kept.self, add);
  for (FieldId id = kept.field; id != 0; id = tables.fields[id].outer)
    words.Add(true, tables.fields[id].opening);
  AddKept(format.words, tables, words);
  return words.Text();
}

std::string Shown(const ParaFormat& format, const FormatTables& tables) {
  static constexpr const char* kRules[] = {"", "1.5", "2", "atleast", "exact", "multiple"};
  Words words;
  words.Add(format.alignment != Alignment::Left,
            kAlignmentWords[static_cast<int>(format.alignment)]);
  words.Number(format.firstIndent, 0, "first");
  words.Number(format.hangingIndent, 0, "hanging");
  for (const LengthWord& word : kLengthWords) words.Number(format.*word.length, 0, word.name);
  words.Add(format.lineRule != LineRule::Single, kRules[static_cast<int>(format.lineRule)]);
  words.Number(format.lineSpacing, 0, "");
  words.Add(format.bullet != 0, "bullet");
  words.Add(format.rightToLeft != 0, "rtl");
  words.Number(format.list, 0, "list");
  words.Number(format.level, 0, "level");
  words.Number(format.nesting, 0, "nesting");
  AddKept(format.words, tables, words);
  for (const TabStop& tab : tables.tabs[format.tabs]) {
    words.Next() << 't' << "lrcdb"[static_cast<int>(tab.kind)] << tab.position;
    words.Number(tab.leader, 0, "leader");
  }
  return words.Text();
}

std::string WrittenBitByBit(const Document& document) {
  std::string written;
  const ByteSink sink = [&](std::string_view piece) { written += piece; };
  RtfWriter writing(document, {0, document.Length()}, document.Mark(), sink);
  while (writing.Step(3)) continue;
  return written;
}

}  // namespace

Document Read(std::string_view rtf, RtfTarget target, CharFormat base) {
  Document document;
  document.Replace(0, 0, ReadRtf(rtf, document.Formats(), target, base));
  return document;
}

std::string TextOf(const Document& document) {
  return ToUtf8(ReplaceEvery(document.Text(0, document.Length()), u"\r\n", u"\n"));
}

std::string LossOf(const Document& document) {
  const std::string written = WriteRtf(document);
  const Document again = Read(written);
  if (again.Text(0, again.Length()) != document.Text(0, document.Length()))
    return "text: " + TextOf(again);
  const std::string rewritten = WriteRtf(again);
  if (rewritten != written) return "bytes: " + written + "became: " + rewritten;
  if (WrittenBitByBit(document) != written) return "bit by bit: " + WrittenBitByBit(document);
  for (std::size_t i = 0; i < written.size(); ++i) {
    const char c = written[i];
    const bool ofLineEnd =
        (c == '\r' && written[i + 1] == '\n') || (c == '\n' && written[i - 1] == '\r');
    if (!ofLineEnd && (c < ' ' || c > '~')) return "ASCII: " + written;
  }
  return {};
}

std::string Shown(const Document& document) {
  const FormatTables& tables = document.Formats();
  std::ostringstream shown;
  std::string last = "<>";
  const auto change = [&](CharId format) {
    const std::string words = Shown(tables.characters[format], tables);
    if (words != last) shown << words;
    last = words;
  };
  for (Position at = 0; at < document.Length(); ++at) {
    change(document.CharFormatAt(at));
    const char16_t unit = document.At(at);
    if (unit == u'\r') {
      shown << '|' << Shown(tables.paragraphs[document.ParaFormatAt(at)], tables);
      ++at;
    } else {
      shown << ToUtf8({&unit, 1});
    }
  }
  change(document.Mark().character);
  shown << '|' << Shown(tables.paragraphs[document.Mark().paragraph], tables);
  return shown.str();
}

}  // namespace lumenote
