// The control words of character and paragraph formats.
#include <algorithm>
#include <cstdint>
#include <iterator>

#include "rtf/words/ParagraphWords.h"
#include "rtf/write/WrittenFormats.h"

namespace lumenote {
namespace {

std::string_view ScriptWord(int effects) {
  if ((effects & kSuperscript) != 0) return "super";
  return (effects & kSubscript) != 0 ? "sub" : "nosupersub";
}

void WriteEffects(int from, int to, Output& out) {
  const int changed = from ^ to;
  for (const EffectWord& word : kEffectWords) {
    if ((changed & word.effect) != 0) out.Word((to & word.effect) != 0 ? word.on : word.off);
  }
  if ((changed & (kSuperscript | kSubscript)) != 0) out.Word(ScriptWord(to));
}

struct LineWords {
  int spacing = 0;
  bool multiple = false;
};

LineWords WordsOf(LineRule rule, int spacing) {
  const int size = std::clamp(spacing, 0, kMaxLength);
  switch (rule) {
    case LineRule::OneAndHalf:
      return {kLine * 3 / 2, true};
    case LineRule::Double:
      return {kLine * 2, true};
    case LineRule::AtLeast:
      return {size, false};
    case LineRule::Exact:
      return {-size, false};
    case LineRule::Multiple:
      return {size, true};
    default:
      return {};
  }
}

/// The start of the last part if that is \hich's, else the end.
WordsId HighPart(WordsId words, const FormatTables& tables) {
  WordsId last = 0;
  for (WordsId id = words; id != 0; id = tables.words[id].next)
    if (IsMark(tables.words[id])) last = id;
  return tables.words[last].kind == KeptWord::Kind::HighScript ? last : 0;
}

/// Writes the words of a run, up to `end`.
void WriteWords(WordsId first, WordsId end, const FormatTables& tables, Output& out) {
  tables.words.ForEach(first, end, [&](KeptWord word) {
    const std::string& name = tables.names[word.name];
    word.kind == KeptWord::Kind::Numbered ? out.Word(name, word.number) : out.Word(name);
  });
}

class ParagraphWriter {
 public:
  /// With `whole`, also writes default values.
  explicit ParagraphWriter(bool whole) : whole_(whole) {}

  void Kept(KeptWord word, const FormatTables& tables);

  void Word(std::string_view name) { words_.append("\\").append(name); }
  void Number(std::string_view name, std::int64_t number) {
    Word(name);
    words_ += std::to_string(std::clamp<std::int64_t>(number, -kMaxLength, kMaxLength));
  }
  void Length(std::string_view name, std::int64_t twips) {
    if (twips != 0 || whole_) Number(name, twips);
  }
  void LineSpacing(LineWords line) {
    const bool single = line.spacing == 0 || (line.multiple && line.spacing == kLine);
    if (single && whole_) return void(words_ += "\\sl240\\slmult1");
    if (single) return;
    Number("sl", line.spacing);
    Number("slmult", line.multiple ? 1 : 0);
  }
  void Tab(const TabStop& tab);

  std::string Take() { return std::move(words_); }

 private:
  std::string words_;
  bool whole_;
};

void ParagraphWriter::Kept(KeptWord word, const FormatTables& tables) {
  const std::string& name = tables.names[word.name];
  if (word.kind == KeptWord::Kind::Numbering) return void(words_ += name);
  Word(name);
  if (word.kind == KeptWord::Kind::Numbered) words_ += std::to_string(word.number);
}

void ParagraphWriter::Tab(const TabStop& tab) {
  static constexpr std::string_view kLeaders[] = {"", "tldot", "tlhyph", "tlul", "tlth", "tleq"};
  static constexpr std::string_view kKinds[] = {"", "tqr", "tqc", "tqdec", ""};
  const std::string_view leader = kLeaders[tab.leader % std::size(kLeaders)];
  const std::string_view kind = kKinds[static_cast<std::size_t>(tab.kind)];
  if (!leader.empty()) Word(leader);
  if (!kind.empty()) Word(kind);
  Number(tab.kind == TabKind::Bar ? "tb" : "tx", tab.position);
}

}  // namespace

void WriteChange(const WrittenFormat& from, const WrittenFormat& to, const FormatTables& tables,
                 Output& out) {
  static constexpr WrittenFormat kNothing;
  const WordsId high = HighPart(to.words, tables);
  const bool anew = from.words != to.words || high != 0;
  const WrittenFormat& base = anew && from.words != 0 ? kNothing : from;
  if (anew) {
    if (from.words != 0) out.Word("plain");
    WriteWords(to.words, high, tables, out);
  }
  if (base.effects != to.effects) WriteEffects(base.effects, to.effects, out);
  if (base.underline != to.underline)
    out.Word(kUnderlineWords[static_cast<std::size_t>(to.underline)]);
  if (base.halfPoints != to.halfPoints) {
    out.Word(to.halfPoints < 0 ? "dn" : "up", std::abs(to.halfPoints));
  }
  for (std::size_t i = 0; i < to.numbers.size(); ++i)
    if (base.numbers[i] != to.numbers[i]) out.Word(kNumberWords[i].name, to.numbers[i]);
  if (high == 0 && base.font != to.font) out.Word("f", to.font);
  if (base.size != to.size) out.Word("fs", to.size);
  if (high == 0) return;
  WriteWords(high, 0, tables, out);
  out.Word("f", to.font);
}

std::string ParagraphWords(const ParaFormat& format, const FormatTables& tables, bool styled) {
  const std::int64_t hanging = format.hangingIndent;
  const std::string_view alignment = kAlignmentWords[static_cast<std::size_t>(format.alignment)];
  // Styles and lists impose their own formats on paragraphs that leave something unsaid.
  const bool whole = styled || format.list != 0;
  ParagraphWriter words(whole);
  tables.words.ForEach(format.words, [&](KeptWord word) { words.Kept(word, tables); });
  if (format.rightToLeft != 0) words.Word("rtlpar");
  if (format.list != 0) words.Number("ls", format.list - 1);
  if (format.list != 0) words.Number("ilvl", format.level);
  words.Length("fi", -hanging);
  words.Length("li", format.firstIndent + hanging);
  for (const LengthWord& word : kLengthWords) words.Length(word.name, format.*word.length);
  words.LineSpacing(WordsOf(format.lineRule, format.lineSpacing));
  for (const TabStop& tab : tables.tabs[format.tabs]) words.Tab(tab);
  if (whole || format.alignment != Alignment::Left) words.Word(alignment);
  return words.Take();
}

}  // namespace lumenote
