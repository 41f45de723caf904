#include "rtf/read/tables/TableTail.h"

#include <algorithm>
#include <iterator>

namespace lumenote {
namespace {

using Kind = Token::Kind;

bool BeginsEntry(std::string_view word) {
  static constexpr std::string_view kWords[] = {"f", "s", "cs", "ds", "ts"};
  return std::ranges::find(kWords, word) != std::end(kWords);
}

/// Words of runs show that a group with a font is text.
bool BelongsToFont(std::string_view word) {
  const bool ofRuns = word == "fs" || word == "fi";
  return (word.starts_with('f') && !ofRuns) || word == "cpg" || word == "u";
}

bool IsOfColour(const Token& token) {
  if (token.kind == Kind::Text) return token.text.find_first_not_of("; ") == std::string_view::npos;
  return token.kind == Kind::Word &&
         (token.text == "red" || token.text == "green" || token.text == "blue");
}

bool IsDigits(const Token& token) {
  constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
  return token.kind == Kind::Text &&
         token.text.find_first_not_of(kDigits) == std::string_view::npos;
}

/// What the tokens of a tail can be, as far as they have been seen.
class Candidate {
 public:
  explicit Candidate(bool surplus) : anything_(surplus) {}

  bool Possible() const { return anything_ || entries_ || colours_ || digits_; }
  void Take(const Token& token, int depth) {
    colours_ = colours_ && IsOfColour(token);
    digits_ = digits_ && IsDigits(token);
    entries_ = entries_ && (depth > 0 || token.kind == Kind::Open || token.kind == Kind::Close);
    const bool named = opened_ && token.kind == Kind::Word;
    if (depth == 1 && named) {
      entries_ = entries_ && BeginsEntry(token.text);
      ofFont_ = token.text == "f";
    } else if (depth == 1 && ofFont_ && token.kind == Token::Kind::Word) {
      entries_ = entries_ && BelongsToFont(token.text);
    }
    opened_ = token.kind == Kind::Open || (opened_ && token.kind == Kind::Symbol);
    if (token.kind != Kind::Text) return;
    last_ = token.text.back();
    length_ += token.text.size();
  }
  bool Ends() const { return digits_ ? length_ >= kLeastDigits : last_ == ';'; }

 private:
  static constexpr std::size_t kLeastDigits = 32;  // fewer may be a word or a number

  bool anything_;
  bool entries_ = true, colours_ = true, digits_ = true;
  bool opened_ = false;
  bool ofFont_ = false;     // the current entry is one of a font
  char last_ = 0;           // of the text
  std::size_t length_ = 0;  // of the text
};

/// Whether the "}" just read is the document's own.
bool IsLast(const Tokenizer& tokens) {
  return tokens.OnlyClosesFollow() || !tokens.MarkupFollows() || tokens.DocumentFollows();
}

}  // namespace

TableTail FindTableTail(Tokenizer tokens, bool surplus) {
  Candidate candidate(surplus);
  int depth = 0;
  for (Token token = tokens.Next(); token.kind != Kind::End; token = tokens.Next()) {
    const bool ends = token.kind == Kind::Close && depth == 0;
    if (ends && IsLast(tokens)) break;
    if (ends) return {candidate.Ends(), tokens.Start()};
    candidate.Take(token, depth);
    if (EndsTable(token) || !candidate.Possible()) break;
    if (token.kind == Kind::Open) ++depth;
    if (token.kind == Kind::Close) --depth;
  }
  return {false, tokens.Start()};
}

}  // namespace lumenote
