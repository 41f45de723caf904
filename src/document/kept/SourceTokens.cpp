#include "document/kept/SourceTokens.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/Windows1252.h"

namespace lumenote {
namespace {

using Kind = SourceToken::Kind;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

SourceToken ByteToken(char c) {
  return {.character = UnitOf1252(c), .byte = static_cast<unsigned char>(c)};
}

/// A character after a backslash.
SourceToken Symbol(char c) {
  switch (c) {
    case '~':
      return {.character = u'\u00A0'};
    case '_':
      return {.character = u'\u2011'};
    case '-':
      return {.character = u'\u00AD'};
    default:
      return ByteToken(c);
  }
}

}  // namespace

std::optional<SourceToken> SourceTokens::Next() {
  while (!rest_.empty()) {
    std::optional<SourceToken> token = Take();
    if (token && !Skips(*token)) return token;
  }
  return std::nullopt;
}

/// One token; nothing for what has no meaning, such as a line end.
std::optional<SourceToken> SourceTokens::Take() {
  const char c = rest_.front();
  rest_.remove_prefix(1);
  switch (c) {
    case '\\':
      return Control();
    case '{':
      return SourceToken{.kind = Kind::Open};
    case '}':
      return SourceToken{.kind = Kind::Close};
    case '\r':
    case '\n':
      return std::nullopt;
    default:
      return ByteToken(c);
  }
}

/// The word or symbol after a backslash.
std::optional<SourceToken> SourceTokens::Control() {
  if (rest_.empty()) return std::nullopt;
  const char c = rest_.front();
  if (IsLetter(c)) return Word();
  rest_.remove_prefix(1);
  if (c == '\'') return Byte();
  if (c != '*') return Symbol(c);
  starred_ = true;
  return std::nullopt;
}

SourceToken SourceTokens::Byte() {
  const std::string_view digits = rest_.substr(0, 2);
  unsigned byte = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
  rest_.remove_prefix(digits.size());
  return ByteToken(static_cast<char>(byte));
}

SourceToken SourceTokens::Word() {
  const auto letters =
      static_cast<std::size_t>(std::ranges::find_if_not(rest_, IsLetter) - rest_.begin());
  SourceToken token{.kind = Kind::Word,
                    .starred = std::exchange(starred_, false),
                    .word = rest_.substr(0, letters)};
  rest_.remove_prefix(letters);
  const char* const digits = rest_.data();
  const char* const end = std::from_chars(digits, digits + rest_.size(), token.number).ptr;
  token.hasNumber = end != digits;
  rest_.remove_prefix(static_cast<std::size_t>(end - digits));
  if (rest_.starts_with(' ')) rest_.remove_prefix(1);
  return token;
}

/// Does what the token says of those after it. Returns whether it is none itself: it is skipped.
bool SourceTokens::Skips(SourceToken& token) {
  if (token.kind == Kind::Open || token.kind == Kind::Close) {
    Nest(token.kind);
    return false;
  }
  const bool skipped = skipped_ > 0;
  if (skipped) --skipped_;
  if (token.kind == Kind::Character) return skipped;
  if (token.word == "uc") fallbacks_.back() = token.hasNumber ? std::max(token.number, 0) : 1;
  if (token.word == "bin") SkipBytes(token.number);
  if (token.word != "u") return false;
  skipped_ = fallbacks_.back();
  token = {.character = static_cast<char16_t>(token.number)};
  return token.character == 0;
}

void SourceTokens::Nest(Kind brace) {
  skipped_ = 0;
  if (brace == Kind::Open)
    fallbacks_.push_back(fallbacks_.back());
  else if (fallbacks_.size() > 1)
    fallbacks_.pop_back();
}

/// A length beyond the end is none.
void SourceTokens::SkipBytes(int count) {
  const auto length = static_cast<std::size_t>(std::max(count, 0));
  if (length <= rest_.size()) rest_.remove_prefix(length);
}

}  // namespace lumenote
