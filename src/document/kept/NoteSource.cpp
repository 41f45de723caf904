#include "document/kept/NoteSource.h"

#include <algorithm>
#include <array>
#include <iterator>

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

}  // namespace

FootnoteText TextOfFootnote(std::string_view group) {
  FootnoteText note;
  int depth = 0;
  int aside = 0;       // the depth of the group that is passed over, 0 none
  bool first = false;  // of a group
  SourceTokens tokens(group);
  while (const auto token = tokens.Next()) {
    if (token->kind == Kind::Open) ++depth;
    if (token->kind == Kind::Close && aside == depth--) aside = 0;
    if (token->kind == Kind::Word && first && depth > 1 && aside == 0 && IsAside(*token))
      aside = depth;
    first = token->kind == Kind::Open;
    if (aside != 0) continue;
    if (token->word == "chftn") note.numbered = true;
    if (token->kind == Kind::Character) note.text += token->character;
    const auto* const text = std::ranges::find(kTextWords, token->word, &TextWord::word);
    if (text != std::end(kTextWords)) note.text += text->text;
  }
  note.text = Trimmed(note.text);
  return note;
}

}  // namespace lumenote
