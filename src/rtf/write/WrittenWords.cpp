// The control words of character and paragraph formats.
#include <algorithm>
#include <cstdint>
#include <iterator>

#include "rtf/words/ParagraphWords.h"
#include "rtf/write/WrittenFormats.h"

namespace lumenote {
namespace {

constexpr int kScripts = kSuperscript | kSubscript;

/// Some readers know only one way back to the line; one of them takes \super0 for \super, until
/// \nosupersub ends it.
void WriteScript(int from, int to, Output& out) {
  const bool plain = (to & kScripts) == 0;
  if (plain) out.Word((from & kSuperscript) != 0 ? "super0" : "sub0");
  if ((from & kScripts) != 0) out.Word("nosupersub");
  if (!plain) out.Word((to & kSuperscript) != 0 ? "super" : "sub");
}

/// Some readers take the superscript text before a footnote for its mark, from the last \nosupersub
/// or end of a group on.
void EndMark(int from, int to, bool anew, Output& out) {
  if ((from & kSuperscript) == 0) return;
  if (anew)
    out.Words("\\nosupersub{}");
  else if ((to & kSuperscript) != 0)
    out.Raw("{}");
}

void WriteEffects(int from, int to, Output& out) {
  const int changed = from ^ to;
  for (const EffectWord& word : kEffectWords) {
    if ((changed & word.effect) != 0) out.Word((to & word.effect) != 0 ? word.on : word.off);
  }
  if ((changed & kScripts) != 0) WriteScript(from, to, out);
}

struct LineWords {
  int spacing = 0;
  bool multiple = false;
};

LineWords WordsOf(LineRule rule, int spacing) {
  const int size = std::clamp(spacing, 0, kMaxLength);
  switch (rule) {
    case LineRule::OneAndHalf:
      return {kSingleLine * 3 / 2, true};
    case LineRule::Double:
      return {kSingleLine * 2, true};
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

/// What the kept words of a run say of the order in which it is written.
struct WordOrder {
  WordsId last = 0;          // the start of the last part if that takes what follows it
  bool hasFont = false;      // the own font has a place among the words
  bool fontLast = false;     // and that is the last one
  bool hasSize = false;      // so has the size
  bool marked = false;       // there are markers
  bool scripts = false;      // some of them of scripts
  bool leftToRight = false;  // one of text from left to right
  bool leftFirst = false;    // and that is the first one
  bool ownFont = false;      // the font's place precedes the markers, and so does
  bool ownSize = false;      // the size's, unless a script's marker comes first
  bool settled = true;       // a change of the run's own formats may follow as it is
};

/// Whether the part of a script is \hich's, or has a size of its own: readers take a size that
/// follows for that of this script.
bool TakesWhatFollows(WordsId part, const FormatTables& tables) {
  if (tables.words[part].kind == KeptWord::Kind::HighScript) return true;
  if (!IsScript(tables.words[part])) return false;
  return tables.words.Any(part, [&](KeptWord word) { return tables.names[word.name] == "afs"; });
}

WordOrder OrderOf(WordsId words, const FormatTables& tables) {
  WordOrder order;
  WordsId last = 0;
  for (WordsId id = words; id != 0; id = tables.words[id].next) {
    const KeptWord word = tables.words[id];
    if (IsMark(word)) {
      if (!order.marked) order.ownFont = order.hasFont;
      if (!order.marked) order.ownSize = order.hasSize || IsScript(word);
      last = id;
      order.settled = !order.hasFont;
      if (!order.marked) order.leftFirst = word.kind == KeptWord::Kind::LeftToRight;
      order.marked = true;
      order.leftToRight |= word.kind == KeptWord::Kind::LeftToRight;
    }
    if (IsScript(word)) order.scripts = true;
    order.fontLast = word.kind == KeptWord::Kind::Font;
    if (order.fontLast) order.hasFont = order.settled = true;
    if (word.kind == KeptWord::Kind::Size) order.hasSize = true;
  }
  if (last != 0 && TakesWhatFollows(last, tables)) order.last = last;
  order.settled = order.settled && order.last == 0 && !order.hasSize;
  return order;
}

void WriteWord(KeptWord word, const WrittenFormat& run, const FormatTables& tables, Output& out) {
  const std::string& name = tables.names[word.name];
  switch (word.kind) {
    case KeptWord::Kind::Numbered:
      out.Word(name, word.number);
      return;
    case KeptWord::Kind::Font:
      if (run.font >= 0) out.Word("f", run.font);
      return;
    case KeptWord::Kind::Size:
      if (run.size > 0) out.Word("fs", run.size);
      return;
    default:
      out.Word(name);
  }
}

/// Whether readers would take a font or size that is in force for that of text before the markers.
/// A first part of text from left to right takes the place of it.
bool Misplaces(const WrittenFormat& from, const WordOrder& order) {
  const bool ownFont = order.ownFont || order.scripts || (order.leftFirst && order.hasFont);
  const bool ownSize = order.ownSize || order.leftFirst;
  return order.marked && ((from.font >= 0 && !ownFont) || (from.size > 0 && !ownSize));
}

/// Writes the kept words of a run from `first` up to `end`, its font and size among them.
void WriteWords(WordsId first, WordsId end, const WrittenFormat& run, const FormatTables& tables,
                Output& out) {
  tables.words.ForEach(first, end, [&](KeptWord word) { WriteWord(word, run, tables, out); });
}

constexpr WrittenFormat kPlain;  // what \plain makes

/// Whether `to` leaves something unsaid that `from` says: only \plain takes it back.
bool TakesBack(const WrittenFormat& from, const WrittenFormat& to) {
  const auto takesBack = [](auto one, auto other, auto plain) {
    return one != plain && other == plain;
  };
  const auto takesBackNumber = [&](std::size_t i) {
    return takesBack(from.numbers[i], to.numbers[i], kPlain.numbers[i]);
  };
  return takesBack(from.font, to.font, kPlain.font) || takesBack(from.size, to.size, kPlain.size) ||
         takesBackNumber(NumberWordCalled(kColourWord)) ||
         takesBackNumber(NumberWordCalled("lang"));
}

/// Whether some of what is said must be taken back first.
bool BeginsAnew(const WrittenFormat& from, const WrittenFormat& to, const WordOrder& order,
                bool rewords) {
  // A size that is said already would be that of what is said before the markers.
  const bool moves = order.scripts || (order.marked && !order.leftToRight);
  const bool movesSize = rewords && moves && !order.hasSize && from.size > 0;
  return from.reset != to.reset || movesSize || TakesBack(from, to) ||
         (rewords && (from.words != 0 || Misplaces(from, order)));
}

void WriteAttributes(const WrittenFormat& from, const WrittenFormat& to, Output& out) {
  if (from.effects != to.effects) WriteEffects(from.effects, to.effects, out);
  if (from.underline != to.underline)
    out.Word(kUnderlineWords[static_cast<std::size_t>(to.underline)]);
  if (from.halfPoints != to.halfPoints)
    out.Word(to.halfPoints < 0 ? "dn" : "up", std::abs(to.halfPoints));
  for (std::size_t i = 0; i < to.numbers.size(); ++i)
    if (from.numbers[i] != to.numbers[i]) out.Word(kNumberWords[i].name, to.numbers[i]);
}

class ParagraphWriter {
 public:
  explicit ParagraphWriter(const ParaFormat& format) : format_(format) {}

  void Kept(KeptWord word, const FormatTables& tables);

  void Word(std::string_view name) { words_.append("\\").append(name); }
  void Number(std::string_view name, std::int64_t number) {
    Word(name);
    words_ += std::to_string(std::clamp<std::int64_t>(number, -kMaxLength, kMaxLength));
  }
  void Direction();
  void Length(std::string_view name, std::int64_t twips, ParaStated attribute) {
    if (twips != 0 || Stated(attribute)) Number(name, twips);
  }
  void LineSpacing(LineWords line) {
    const bool single = line.spacing == 0 || (line.multiple && line.spacing == kSingleLine);
    if (single) line = {kSingleLine, true};
    if (single && !Stated(kStatesLineSpacing)) return;
    Number("sl", line.spacing);
    Number("slmult", line.multiple ? 1 : 0);
  }
  void Aligned();
  void Tab(const TabStop& tab);

  std::string Take() { return std::move(words_); }

 private:
  bool Stated(ParaStated attribute) const { return (format_.stated & attribute) != 0; }

  const ParaFormat& format_;
  std::string words_;
};

void ParagraphWriter::Direction() {
  const bool rightToLeft = format_.rightToLeft != 0;
  if (rightToLeft || Stated(kStatesDirection)) Word(rightToLeft ? "rtlpar" : "ltrpar");
}

void ParagraphWriter::Aligned() {
  if (format_.alignment != Alignment::Left || Stated(kStatesAlignment))
    Word(kAlignmentWords[static_cast<std::size_t>(format_.alignment)]);
}

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
  const WordOrder order = OrderOf(to.words, tables);
  // Alone, a font would be said last.
  const bool movesFont = from.font != to.font && order.hasFont && !order.fontLast;
  const bool rewords = from.words != to.words || !order.settled || movesFont;
  const bool anew = BeginsAnew(from, to, order, rewords);
  const bool worded = anew || rewords;
  const WrittenFormat& base = anew ? kPlain : from;
  EndMark(from.effects, to.effects, anew, out);
  if (anew) out.Reset(from.reset != to.reset && to.reset != Reset::First);
  if (worded) WriteWords(to.words, order.last, to, tables, out);
  WriteAttributes(base, to, out);
  if (!(order.hasFont && worded) && base.font != to.font) out.Word("f", to.font);
  const bool sizeAnew = base.size != to.size || (worded && order.marked && to.size > 0);
  if (!(order.hasSize && worded) && sizeAnew) out.Word("fs", to.size);
  if (worded) WriteWords(order.last, 0, to, tables, out);
}

std::string ParagraphWords(const ParaFormat& format, const FormatTables& tables) {
  const std::int64_t hanging = format.hangingIndent;
  ParagraphWriter words(format);
  tables.words.ForEach(format.words, [&](KeptWord word) { words.Kept(word, tables); });
  words.Direction();
  if (format.list != 0) words.Number("ls", format.list - 1);
  if (format.list != 0) words.Number("ilvl", format.level);
  words.Length("fi", -hanging, kStatesFirstIndent);
  words.Length("li", format.firstIndent + hanging, kStatesLeftIndent);
  for (const LengthWord& word : kLengthWords)
    words.Length(word.name, format.*word.length, word.stated);
  words.LineSpacing(WordsOf(format.lineRule, format.lineSpacing));
  for (const TabStop& tab : tables.tabs[format.tabs]) words.Tab(tab);
  words.Aligned();
  return words.Take();
}

}  // namespace lumenote
