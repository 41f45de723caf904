// Words that say what their group is: tables, lists, things skipped and things kept.
#include <algorithm>

#include "rtf/Interpreter.h"

namespace lumenote {
namespace {

constexpr char16_t kObjectCharacter = u'\uFFFC';

void AppendHex(std::string_view bytes, std::string_view before, std::string& out) {
  constexpr char kDigits[] = "0123456789abcdef";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out += before;
    out += kDigits[byte >> 4];
    out += kDigits[byte & 15];
  }
}

/// The source with its NUL bytes made blank lines, which like them mean nothing.
void AppendSource(std::string_view source, std::string& out) {
  const std::size_t start = out.size();
  out += source;
  std::replace(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(), '\0', '\n');
}

}  // namespace

/// The group's text is text as any other.
void Interpreter::EnterGroup(int, const Token&) {}

void Interpreter::SkipGroup(int, const Token&) { tokens_.SkipGroup(); }

/// Skips a table of the head; a word of the body behind its entries shows that its brace is lost.
void Interpreter::SkipTable(int, const Token&) {
  int depth = 0;
  tokens_.WhileInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Open) ++depth;
    if (token.kind == Token::Kind::Close) --depth;
    return depth > 0 || !EndsTable(token);
  });
}

void Interpreter::KeepGroup(int, const Token&) {
  const ObjectId object = formats_.objects.Intern({KeptGroup()});
  CharFormat format = State().character;
  format.object = object;
  BeforeText();
  body_.Append({&kObjectCharacter, 1}, formats_.characters.Intern(format));
}

/// The group as it stands in the source, in pure ASCII: binary data, which is hexadecimal digits
/// otherwise, is written so. Braces that are missing at the end are supplied.
std::string Interpreter::KeptGroup() {
  std::string kept = wasStarred_ ? "{\\*" : "{";
  std::size_t copied = tokens_.Start();
  std::size_t end = tokens_.At();
  std::size_t depth = 0;
  const auto copyTo = [&](std::size_t to) {
    AppendSource(tokens_.Source(copied, to), kept);
    copied = to;
  };
  tokens_.ForEachInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Open) ++depth;
    if (token.kind == Token::Kind::Close) --depth;
    if (token.kind == Token::Kind::Binary || token.kind == Token::Kind::High) {
      copyTo(end);
      copied = tokens_.At();
      if (token.kind == Token::Kind::Binary) kept += '\n';
      AppendHex(token.text, token.kind == Token::Kind::High ? "\\'" : "", kept);
    }
    end = tokens_.At();
  });
  copyTo(tokens_.AtEnd() ? end : tokens_.At());
  return kept.append(depth + 1, '}');
}

/// \upr holds the text twice: first for readers without Unicode.
void Interpreter::SkipAlternative(int, const Token&) {
  if (tokens_.Next().kind != Token::Kind::Open) return tokens_.Unread();
  tokens_.SkipGroup();
  tokens_.Next();
}

void Interpreter::Marker(int, const Token&) {
  const std::size_t from = tokens_.At();
  tokens_.SkipGroup();
  if (marker_.empty() && !placingMarker_) marker_ = tokens_.Source(from, tokens_.At());
}

void Interpreter::Numbering(int, const Token&) {
  bool bullet = false;
  tokens_.ForEachInGroup([&](const Token& token) {
    if (token.kind == Token::Kind::Word && token.text == "pnlvlblt") bullet = true;
  });
  Outer().paragraph.bullet = bullet;
  Outer().paragraphKnown = false;
}

void Interpreter::Fonts(int, const Token&) {
  fonts_.Read(tokens_, formats_.fonts, documentPage_);
  UseDefaultFont(Outer());
}

void Interpreter::Colours(int, const Token&) { colours_.Read(tokens_); }
void Interpreter::Lists(int, const Token&) { lists_.ReadLists(tokens_); }
void Interpreter::ListOverrides(int, const Token&) { lists_.ReadOverrides(tokens_); }

}  // namespace lumenote
