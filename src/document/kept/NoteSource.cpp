#include "document/kept/NoteSource.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

#include "base/codepages/CodePage.h"
#include "document/formats/Formats.h"
#include "document/kept/SourceTokens.h"

namespace lumenote {
namespace {

using Kind = SourceToken::Kind;

struct TextWord {
  std::string_view word;
  std::u16string_view text;
};
constexpr TextWord kTextWords[] = {
    {"par", u"\r\n"},         {"line", u"\v"},          {"tab", u"\t"},
    {"cell", u"\t"},          {"row", u"\r\n"},         {"emdash", u"\u2014"},
    {"endash", u"\u2013"},    {"lquote", u"\u2018"},    {"rquote", u"\u2019"},
    {"ldblquote", u"\u201C"}, {"rdblquote", u"\u201D"}, {"bullet", u"\u2022"},
};

/// Whether the content of a group that begins with that word is none of the text.
bool IsAside(const SourceToken& word) {
  constexpr std::array<std::string_view, 7> kAsides = {"pict",     "object", "shp", "fldinst",
                                                       "footnote", "pntext", "do"};
  return word.starred || std::ranges::find(kAsides, word.word) != kAsides.end();
}

/// Takes blanks from the ends, and runs that become empty.
void Trim(FootnoteText& note) {
  constexpr std::u16string_view kBlanks = u" \t\r\n";
  const std::size_t from = std::min(note.text.find_first_not_of(kBlanks), note.text.size());
  note.text.erase(note.text.find_last_not_of(kBlanks) + 1);
  note.text.erase(0, from);
  for (FootnoteText::Run& run : note.runs) run.start -= std::min(run.start, from);
  std::vector<FootnoteText::Run> runs;
  for (const FootnoteText::Run& run : note.runs) {
    if (run.start >= note.text.size()) break;
    if (!runs.empty() && runs.back().start == run.start) runs.pop_back();
    if (runs.empty() || runs.back().effects != run.effects) runs.push_back(run);
  }
  note.runs = std::move(runs);
}

/// Collects text, whose bytes are in the code page of their font.
class TextReader {
 public:
  TextReader(const SourcePages& pages, int page, FootnoteText& note)
      : pages_(pages), note_(note), open_{{.page = page}} {}

  void Take(const SourceToken& token) {
    if (token.byte >= 0) return bytes_.push_back(static_cast<char>(token.byte));
    Decode();
    if (token.kind == Kind::Character) Add({&token.character, 1});
    if (token.kind == Kind::Open) open_.push_back(open_.back());
    if (token.kind == Kind::Close && open_.size() > 1) open_.pop_back();
    if (token.kind == Kind::Word) Word(token);
  }
  void Finish() { Decode(); }

 private:
  struct Group {
    int page = 0;
    std::uint16_t effects = 0;
  };

  void Word(const SourceToken& word) {
    Group& group = open_.back();
    if (word.word == "f") group.page = pages_.OfFont(word.number).value_or(group.page);
    if (word.word == "plain") group = {.page = pages_.OfDefault()};
    if (word.word == "b") Set(kBold, !word.hasNumber || word.number != 0);
    if (word.word == "i") Set(kItalic, !word.hasNumber || word.number != 0);
    const auto* const text = std::ranges::find(kTextWords, word.word, &TextWord::word);
    if (text != std::end(kTextWords)) Add(text->text);
  }
  void Set(std::uint16_t effect, bool on) {
    std::uint16_t& effects = open_.back().effects;
    effects = static_cast<std::uint16_t>(on ? effects | effect : effects & ~effect);
  }
  void Add(std::u16string_view text) {
    const std::uint16_t effects = open_.back().effects;
    if (note_.runs.empty() || note_.runs.back().effects != effects)
      note_.runs.push_back({note_.text.size(), effects});
    note_.text += text;
  }
  /// A character may have several bytes, so those that follow each other are decoded together.
  /// Symbols mean nothing without their font.
  void Decode() {
    const int own = open_.back().page;
    if (bytes_.empty()) return;
    std::u16string text;
    DecodeCodePage(own == kPageOfSymbols ? kPageOfWindows : own, std::exchange(bytes_, {}), text);
    Add(text);
  }

  const SourcePages& pages_;
  FootnoteText& note_;
  std::vector<Group> open_;  // never empty
  std::string bytes_;
};

}  // namespace

FootnoteText TextOfFootnote(std::string_view group, const SourcePages& pages, int page) {
  FootnoteText note;
  TextReader text(pages, page, note);
  int depth = 0;
  int aside = 0;       // the depth of the group that is passed over, 0 none
  bool first = false;  // of a group
  SourceTokens tokens(group);
  while (const auto token = tokens.Next()) {
    if (token->kind == Kind::Open) ++depth;
    if (token->kind == Kind::Word && first && depth > 1 && aside == 0 && IsAside(*token))
      aside = depth;
    first = token->kind == Kind::Open;
    if (token->word == "chftn" && aside == 0) note.numbered = true;
    const bool brace = token->kind == Kind::Open || token->kind == Kind::Close;
    if (aside == 0 || brace) text.Take(*token);
    if (token->kind == Kind::Close && aside == depth--) aside = 0;
  }
  text.Finish();
  Trim(note);
  return note;
}

}  // namespace lumenote
