#include "rtf/read/KeptSource.h"

#include <algorithm>

#include "document/kept/EntryWords.h"
#include "rtf/read/Keywords.h"
#include "rtf/read/WordFamilies.h"

namespace lumenote {
namespace {

constexpr int kOwnFallback = 1;  // the \uc value that the writer declares

void AppendHex(std::string_view bytes, std::string_view before, std::string& out) {
  constexpr char kDigits[] = "0123456789abcdef";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out += before;
    out += kDigits[byte >> 4];
    out += kDigits[byte & 15];
  }
}

bool IsControl(unsigned char byte) { return byte < 0x20 || byte == 0x7F; }

/// An escaped control character. Most have no meaning, but end the token before them.
std::string_view ControlSymbol(unsigned char byte) {
  if (byte == '\r' || byte == '\n') return "\\\r\n";
  return byte == '\t' ? "\\'09" : "{}";
}

/// Other bytes do not survive in strings and clipboards, which end at NUL and have code pages.
bool IsPrintable(std::string_view data) {
  return std::ranges::all_of(data, [](char c) { return c >= ' ' && c <= '~'; });
}

/// Tracks whether a token is part of the data of a picture or an object, which may be digits too.
/// In a destination within, such as the properties of a picture, digits would mean something else.
class DataGroup {
 public:
  bool Inside() const { return data_ != kNone && other_ == kNone; }
  /// Whether the token is in a group whose text is not body text.
  bool Hidden() const { return hidden_ != kNone; }
  /// `open` is the number of open groups after the token.
  void Pass(const Token& token, std::size_t open) {
    if (other_ != kNone && open < other_) other_ = kNone;
    if (data_ != kNone && open < data_) data_ = kNone;
    if (Hidden() && open < hidden_) hidden_ = kNone;
    if (token.kind == Token::Kind::Word) Word(token.text, open);
    starred_ = opened_ && token.kind == Token::Kind::Symbol && token.byte == '*';
    opened_ = token.kind == Token::Kind::Open;
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  void Word(std::string_view word, std::size_t open) {
    if (!Hidden() && HidesText(word, starred_)) hidden_ = open;
    if (word == "pict" || word == "objdata") {
      data_ = open;
      other_ = kNone;
    } else if (Inside() && HidesText(word, starred_)) {
      other_ = open;
    }
  }

  std::size_t data_ = kNone;   // nesting of the group of data
  std::size_t other_ = kNone;  // of a destination within
  std::size_t hidden_ = kNone;
  bool opened_ = false;
  bool starred_ = false;
};

/// Whether a token directly in a field says something of it. Text there is what a \u without a
/// number makes readers pass over.
bool TellsOfField(const Token& token) {
  if (token.kind == Token::Kind::Word)
    return token.text == "field" || token.text.starts_with("fld");
  return token.kind == Token::Kind::Open || token.kind == Token::Kind::Close ||
         token.kind == Token::Kind::Symbol;
}

}  // namespace

KeptSource::KeptSource(std::string_view source, int fallback, Piece piece) {
  Reserve(source);
  Tokenizer tokens(source);
  DataGroup group;
  std::size_t end = 0;
  std::size_t firstWordEnd = 0;
  bool unicode = false;
  bool delimited = false;
  for (Token token = tokens.Next(); token.kind != Token::Kind::End; token = tokens.Next()) {
    const bool word = token.kind == Token::Kind::Word;
    const bool data = token.kind == Token::Kind::Binary;
    const bool nothing =
        (token.kind == Token::Kind::Close && open == 0) || (data && token.text.empty());
    if (nothing) continue;
    const bool digits = data && (group.Inside() || !IsPrintable(token.text));
    const bool asText = digits && piece == Piece::Field && !group.Hidden();
    const bool ofField = piece == Piece::FieldOpening && open == 0;
    if (asText || (ofField && !TellsOfField(token))) {
      end = tokens.At();
      continue;
    }
    if (tokens.Start() != end && !text.ends_with('\n')) text += "\r\n";
    end = tokens.At();
    Append(token, tokens.Source(tokens.Start(), end), digits);
    group.Pass(token, open);
    delimited = word && text.ends_with(' ');
    if (word && firstWordEnd == 0) firstWordEnd = text.size() - (delimited ? 1 : 0);
    unicode |= word && token.text == "u";
  }
  if (delimited) text.pop_back();
  if (unicode && fallback != kOwnFallback)
    StateFallback(firstWordEnd, fallback, piece == Piece::FieldOpening);
}

void KeptSource::Reserve(std::string_view source) {
  constexpr std::size_t kEscaped = 3;  // extra bytes of an escaped byte
  const auto bare = std::ranges::count_if(source, [](char c) { return c < ' ' || c > '~'; });
  text.reserve(source.size() + kEscaped * static_cast<std::size_t>(bare) + kEscaped);
}

void KeptSource::StateFallback(std::size_t at, int fallback, bool restore) {
  if (restore && text[at] == ' ') text.erase(at, 1);
  text.insert(at, "\\uc" + std::to_string(fallback));
  if (restore) text += "\\uc" + std::to_string(kOwnFallback);
}

void KeptSource::Append(const Token& token, std::string_view source, bool digits) {
  using Kind = Token::Kind;
  if (token.kind == Kind::Open) ++open;
  if (token.kind == Kind::Close) --open;
  const bool control = token.kind == Kind::Symbol && IsControl(token.byte);
  needsHead |= token.kind == Kind::High || token.kind == Kind::Byte ||
               (control && token.byte == '\t') ||
               (token.kind == Kind::Word && TableNamedBy(token.text));
  const bool bare = token.kind == Kind::High || (token.kind == Kind::Byte && source.size() == 1);
  if (bare) return AppendHex(source, "\\'", text);
  if (control) source = ControlSymbol(token.byte);
  if (token.kind != Kind::Binary || !digits) return void(text += source);
  if (!text.ends_with('\n')) text += "\r\n";
  AppendHex(token.text, "", text);
}

}  // namespace lumenote
