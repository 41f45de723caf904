// Cuts RTF source into tokens.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "rtf/codepages/CodePage.h"

namespace lumenote {

/// One piece of RTF source. Its views point into the source.
struct Token {
  enum class Kind : std::uint8_t {
    End,     // of the source
    Open,    // {
    Close,   // }
    Word,    // \name or \name123
    Symbol,  // a backslash and one other character
    Byte,    // \'xx, or a control character other than CR, LF and NUL
    Text,    // bytes from 0x20 to 0x7E that mean themselves
    High,    // bytes from 0x80
    Binary,  // \binN with its bytes
  };
  Kind kind = Kind::End;
  unsigned char byte = 0;      // of Byte and Symbol
  bool hasNumber = false;      // of Word
  int number = 0;              // of Word; held within 32 bits
  std::string_view text = {};  // the name of a word, the bytes of the others
};

/// Whether a token stands nowhere in the tables at the head of a source: a table in which it turns
/// up lacks its closing brace.
bool EndsTable(const Token& token);

/// Never fails: a damaged escape gives nothing, a \bin that would reach beyond the source has no
/// bytes. CR, LF and NUL bytes count for nothing.
class Tokenizer {
 public:
  /// The bytes must outlive the tokenizer.
  explicit Tokenizer(std::string_view source);

  /// A text token is at most `kLongest` bytes, so that what is scanned is still in the cache when
  /// it is copied.
  Token Next();
  static constexpr std::ptrdiff_t kLongest = 1024;

  /// Whether text, a \'xx of a printable byte or, with `unicode`, a \u with one character behind it
  /// for other readers comes next. `unicode` is right only where \uc is 1, as it mostly is.
  bool AtText(bool unicode);
  /// Decodes what `AtText` tells of, bytes by a single-byte page, until `room` is full. Stops
  /// before anything else; returns the number of units.
  std::size_t Decode(const CodePage& page, bool unicode, std::span<char16_t> room);
  /// The same from page 1252 to bytes of it; stops before a \u that has none, too.
  std::size_t DecodeToBytes(bool unicode, std::span<char> room);
  /// Whether the rest of the source is closing braces.
  bool OnlyClosesFollow() const { return at_ >= tail_; }
  /// Whether any brace or backslash is left.
  bool MarkupFollows() const { return At() < markupEnd_; }
  /// Whether the next brace or backslash is the beginning of a document.
  bool DocumentFollows() const;
  bool AtEnd() const { return at_ == end_; }
  /// Puts the last token back.
  void Unread() { at_ = start_; }
  /// Puts the last `count` bytes of a text token back.
  void PutBack(std::size_t count) { at_ -= count; }
  /// Offset of the last token, and of what follows it.
  std::size_t Start() const { return static_cast<std::size_t>(start_ - begin_); }
  std::size_t At() const { return static_cast<std::size_t>(at_ - begin_); }
  std::string_view Source(std::size_t from, std::size_t to) const {
    return {begin_ + from, to - from};
  }

  /// Passes each token of the group that the tokenizer stands in to `visit`, those of inner groups
  /// included, and stops before the "}" that closes it. Braces are counted, so nesting costs no
  /// memory.
  template <class Visit>
  void ForEachInGroup(Visit visit) {
    WhileInGroup([&](const Token& token) {
      visit(token);
      return true;
    });
  }
  /// The same until `visit` returns false; that token is put back.
  template <class Visit>
  void WhileInGroup(Visit visit) {
    std::size_t depth = 0;
    for (Token token = Next(); token.kind != Token::Kind::End; token = Next()) {
      if (token.kind == Token::Kind::Open) ++depth;
      const bool ends = token.kind == Token::Kind::Close && depth-- == 0;
      if (ends || !visit(token)) return Unread();
    }
  }
  void SkipGroup() {
    ForEachInGroup([](const Token&) {});
  }

 private:
  Token Text();
  Token High();
  Token Escape();
  Token Word();
  Token Hex();
  Token Binary(int length);
  template <class Unit, class Decoder>
  std::size_t DecodeWith(Decoder decoder, bool unicode, std::span<Unit> room);
  template <class Holds>
  std::string_view While(const char* end, Holds holds);

  const char* begin_;
  const char* at_;
  const char* end_;
  const char* start_;
  const char* tail_;  // where the closing braces at the end begin
  std::size_t markupEnd_;
};

}  // namespace lumenote
