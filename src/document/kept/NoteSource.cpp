#include "document/kept/NoteSource.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

#include "base/codepages/CodePage.h"
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

std::u16string Trimmed(std::u16string_view text) {
  constexpr std::u16string_view kBlanks = u" \t\r\n";
  const std::size_t from = std::min(text.find_first_not_of(kBlanks), text.size());
  return std::u16string(text.substr(from, text.find_last_not_of(kBlanks) + 1 - from));
}

/// Collects text, whose bytes are in the code page of their font.
class TextReader {
 public:
  TextReader(const SourcePages& pages, int page) : pages_(pages), open_{page} {}

  void Take(const SourceToken& token) {
    if (token.byte >= 0) return bytes_.push_back(static_cast<char>(token.byte));
    Decode();
    if (token.kind == Kind::Character) text_ += token.character;
    if (token.kind == Kind::Open) open_.push_back(open_.back());
    if (token.kind == Kind::Close && open_.size() > 1) open_.pop_back();
    if (token.kind == Kind::Word) Word(token);
  }
  std::u16string TakeText() {
    Decode();
    return std::move(text_);
  }

 private:
  void Word(const SourceToken& word) {
    if (word.word == "f") open_.back() = pages_.OfFont(word.number).value_or(open_.back());
    if (word.word == "plain") open_.back() = pages_.OfDefault();
    const auto* const text = std::ranges::find(kTextWords, word.word, &TextWord::word);
    if (text != std::end(kTextWords)) text_ += text->text;
  }
  /// A character may have several bytes, so those that follow each other are decoded together.
  /// Symbols mean nothing without their font.
  void Decode() {
    const int page = open_.back() == kPageOfSymbols ? kPageOfWindows : open_.back();
    DecodeCodePage(page, std::exchange(bytes_, {}), text_);
  }

  const SourcePages& pages_;
  std::vector<int> open_;  // the page in each open group; never empty
  std::string bytes_;
  std::u16string text_;
};

}  // namespace

FootnoteText TextOfFootnote(std::string_view group, const SourcePages& pages, int page) {
  FootnoteText note;
  TextReader text(pages, page);
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
  note.text = Trimmed(text.TakeText());
  return note;
}

}  // namespace lumenote
