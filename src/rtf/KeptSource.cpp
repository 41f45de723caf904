#include "rtf/KeptSource.h"

#include "rtf/KeptWords.h"

namespace lumenote {
namespace {

constexpr int kOwnFallback = 1;  // what the writer tells with \uc

void AppendHex(std::string_view bytes, std::string_view before, std::string& out) {
  constexpr char kDigits[] = "0123456789abcdef";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out += before;
    out += kDigits[byte >> 4];
    out += kDigits[byte & 15];
  }
}

/// Whether a token outside the groups of a piece is left out of it.
bool IsStray(const Token& token, KeptSource::Own own) {
  if (own == KeptSource::Own::All) return false;
  if (token.kind == Token::Kind::Binary) return true;
  return own == KeptSource::Own::OfField && token.kind == Token::Kind::Word &&
         token.text != "field" && !token.text.starts_with("fld");
}

}  // namespace

KeptSource::KeptSource(std::string_view source, int fallback, Own own) {
  Tokenizer tokens(source);
  std::size_t end = 0;
  std::size_t firstWordEnd = 0;
  bool unicode = false;
  bool delimited = false;
  for (Token token = tokens.Next(); token.kind != Token::Kind::End; token = tokens.Next()) {
    const bool nothing = (token.kind == Token::Kind::Close && open == 0) ||
                         (token.kind == Token::Kind::Binary && token.text.empty());
    if (nothing) continue;
    if (open == 0 && IsStray(token, own)) {
      end = tokens.At();
      continue;
    }
    if (tokens.Start() != end) text += "\r\n";
    end = tokens.At();
    Append(token, tokens.Source(tokens.Start(), end));
    const bool word = token.kind == Token::Kind::Word;
    delimited = word && text.ends_with(' ');
    if (word && firstWordEnd == 0) firstWordEnd = text.size() - (delimited ? 1 : 0);
    unicode |= word && token.text == "u";
  }
  if (delimited) text.pop_back();
  if (!unicode || fallback == kOwnFallback) return;
  const bool ofField = own == Own::OfField;
  if (ofField && text[firstWordEnd] == ' ') text.erase(firstWordEnd, 1);
  text.insert(firstWordEnd, "\\uc" + std::to_string(fallback));
  if (ofField) text += "\\uc" + std::to_string(kOwnFallback);
}

void KeptSource::Append(const Token& token, std::string_view source) {
  using Kind = Token::Kind;
  if (token.kind == Kind::Open) ++open;
  if (token.kind == Kind::Close) --open;
  needsHead |= token.kind == Kind::High || token.kind == Kind::Byte ||
               (token.kind == Kind::Word && NamesTableEntry(token.text));
  if (token.kind == Kind::High) return AppendHex(token.text, "\\'", text);
  if (token.kind != Kind::Binary) return void(text += source);
  if (!text.ends_with('\n')) text += "\r\n";
  AppendHex(token.text, "", text);
}

std::string SourceOf(const Token& word) {
  std::string source = "\\" + std::string(word.text);
  if (word.hasNumber) source += std::to_string(word.number);
  return source;
}

}  // namespace lumenote
