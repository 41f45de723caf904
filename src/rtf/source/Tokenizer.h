// Splits RTF source into tokens.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "base/codepages/CodePage.h"

namespace lumenote {

/// A token; its views point into the source.
struct Token {
  enum class Kind : std::uint8_t {
    End,     // of the source
    Open,    // {
    Close,   // }
    Word,    // \name or \name123
    Symbol,  // a backslash and one other character
    Byte,    // \'xx, or a control character except CR, LF and NUL
    Text,    // literal bytes from 0x20 to 0x7E
    High,    // bytes from 0x80
    Binary,  // \binN with its data
  };
  Kind kind = Kind::End;
  unsigned char byte = 0;      // of Byte and Symbol
  bool hasNumber = false;      // of Word
  int number = 0;              // of Word; clamped to 32 bits
  std::string_view text = {};  // the name of a word, the bytes of other tokens
};

/// The source of a word.
std::string SourceOf(const Token& word);
/// Whether a token cannot occur in the head's tables; finding it in a table shows that the table's
/// closing brace is missing.
bool EndsTable(const Token& token);

/// Never fails: a damaged escape yields nothing, and a \bin that exceeds the source has no data.
/// Ignores CR, LF and NUL bytes.
class Tokenizer {
 public:
  /// The bytes must outlive the tokenizer.
  explicit Tokenizer(std::string_view source);

  /// A text token has at most `kLongest` bytes, so that scanned bytes are still cached when they
  /// are copied.
  Token Next();
  static constexpr std::ptrdiff_t kLongest = 1024;

  /// Whether text comes next: a literal byte, a \'xx of a printable byte or, with `unicode`, a \u
  /// with one fallback character. Pass `unicode` only if \uc is 1, as it usually is.
  bool AtText(bool unicode);
  /// Decodes the text that `AtText` announces, bytes by a single-byte page, until `room` is full.
  /// Stops before anything else; returns the number of units.
  std::size_t Decode(const CodePage& page, bool unicode, std::span<char16_t> room);
  /// The same from page 1252 to bytes of that page; also stops before a \u that has none.
  std::size_t DecodeToBytes(bool unicode, std::span<char> room);
  /// Whether only closing braces remain.
  bool OnlyClosesFollow() const { return at_ >= tail_; }
  /// Whether any brace or backslash remains.
  bool MarkupFollows() const { return At() < markupEnd_; }
  /// Whether the next brace or backslash starts a document.
  bool DocumentFollows() const;
  bool AtEnd() const { return at_ == end_; }
  /// Goes on at an offset.
  void GoTo(std::size_t offset) { at_ = begin_ + offset; }
  /// Un-reads the last token.
  void Unread() { at_ = start_; }
  /// Un-reads the last `count` bytes of a text token.
  void PutBack(std::size_t count) { at_ -= count; }
  /// Offset of the last token, and of what follows it.
  std::size_t Start() const { return static_cast<std::size_t>(start_ - begin_); }
  std::size_t At() const { return static_cast<std::size_t>(at_ - begin_); }
  std::string_view Source(std::size_t from, std::size_t to) const {
    return {begin_ + from, to - from};
  }

  /// Calls `visit` for each token of the current group and its subgroups, and stops before the
  /// group's closing "}". Counts braces, so nesting needs no memory.
  template <class Visit>
  void ForEachInGroup(Visit visit) {
    WhileInGroup([&](const Token& token) {
      visit(token);
      return true;
    });
  }
  /// The same until `visit` returns false; un-reads that token.
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
  const char* tail_;  // start of the closing braces at the end
  std::size_t markupEnd_;
};

}  // namespace lumenote
