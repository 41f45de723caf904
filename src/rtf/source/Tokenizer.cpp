// The lexical rules of RTF.
#include "rtf/source/Tokenizer.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <utility>

#include "base/Windows1252.h"
#include "rtf/source/PlainText.h"
#include "rtf/words/Spellings.h"

namespace lumenote {
namespace {

enum class Class : std::uint8_t { Text, High, Nothing, Control, Open, Close, Escape };

constexpr std::array<Class, 256> kClasses = [] {
  std::array<Class, 256> classes{};
  for (int c = 0; c < 0x20; ++c) classes[c] = Class::Control;
  for (int c = 0x80; c < 0x100; ++c) classes[c] = Class::High;
  classes[0x7F] = Class::Control;
  classes[kSoftHyphen] = Class::Control;  // in one of its spellings, in most pages
  classes[0] = classes['\r'] = classes['\n'] = Class::Nothing;
  classes['{'] = Class::Open;
  classes['}'] = Class::Close;
  classes['\\'] = Class::Escape;
  return classes;
}();

Class ClassOf(char c) { return kClasses[static_cast<unsigned char>(c)]; }
bool IsAsciiLetter(char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }
bool ClosesOrNothing(char c) { return ClassOf(c) == Class::Close || ClassOf(c) == Class::Nothing; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr std::array<std::int8_t, 256> kHexDigits = [] {
  std::array<std::int8_t, 256> digits{};
  digits.fill(-1);
  for (std::int8_t d = 0; d < 10; ++d) digits['0' + d] = d;
  for (std::int8_t d = 0; d < 6; ++d) {
    digits['a' + d] = digits['A' + d] = static_cast<std::int8_t>(10 + d);
  }
  return digits;
}();

int HexDigit(char c) { return kHexDigits[static_cast<unsigned char>(c)]; }

constexpr std::ptrdiff_t kHexLength = 4;  // of \'xx

/// The value of a complete \'xx at `at` if its byte is printable and no soft hyphen, else -1.
int HexValue(const char* at, const char* end) {
  if (end - at < kHexLength || at[0] != '\\' || at[1] != '\'') return -1;
  const int high = HexDigit(at[2]);
  const int low = HexDigit(at[3]);
  const int byte = high >= 2 && low >= 0 ? high * 16 + low : -1;
  return byte == kSoftHyphen ? -1 : byte;
}

/// Consumes the digits at `at` and returns their value, clamped to the range of an int.
std::int64_t Digits(const char*& at, const char* end) {
  constexpr std::int64_t kMax = std::numeric_limits<int>::max();
  std::int64_t number = 0;
  for (; at != end && IsDigit(*at); ++at) number = std::min(kMax, number * 10 + (*at - '0'));
  return number;
}

bool IsNegative(const char* at, const char* end) {
  return end - at > 1 && *at == '-' && IsDigit(at[1]);
}

/// A unit and the length of its source; both are 0 if there is none.
struct Escaped {
  char16_t unit = 0;
  std::ptrdiff_t length = 0;
};

/// The \u at `at` if its unit is printable, without other spellings, and it has one fallback
/// character.
Escaped UnicodeAt(const char* const at, const char* end) {
  constexpr std::ptrdiff_t kLeast = 4;  // \u, a digit, a character
  if (end - at < kLeast || at[0] != '\\' || at[1] != 'u') return {};
  const char* behind = at + 2;
  const bool negative = IsNegative(behind, end);
  if (negative) ++behind;
  if (!IsDigit(*behind)) return {};
  const std::int64_t number = negative ? -Digits(behind, end) : Digits(behind, end);
  if (number < -0x8000 || number > 0xFFFF || (number >= 0 && number < ' ')) return {};
  if (HasSpellings(static_cast<char16_t>(number))) return {};
  if (behind != end && *behind == ' ') ++behind;
  if (behind == end) return {};
  const Class kind = ClassOf(*behind);
  if (kind == Class::Text || kind == Class::High) {
    ++behind;
  } else if (HexValue(behind, end) >= 0) {
    behind += kHexLength;
  } else {
    return {};
  }
  return {static_cast<char16_t>(number), behind - at};
}

}  // namespace

std::string SourceOf(const Token& word) {
  std::string source = "\\" + std::string(word.text);
  if (word.hasNumber) source += std::to_string(word.number);
  return source;
}

bool EndsTable(const Token& token) {
  static constexpr std::string_view kWords[] = {"colortbl", "stylesheet", "info", "viewkind",
                                                "sectd",    "pard",       "par"};
  return token.kind == Token::Kind::Word &&
         std::find(std::begin(kWords), std::end(kWords), token.text) != std::end(kWords);
}

Tokenizer::Tokenizer(std::string_view source)
    : begin_(source.data()),
      at_(begin_),
      end_(begin_ + source.size()),
      start_(begin_),
      tail_(end_),
      markupEnd_(source.find_last_of("\\{}") + 1) {
  while (tail_ != begin_ && ClosesOrNothing(tail_[-1])) --tail_;
}

bool Tokenizer::DocumentFollows() const {
  const std::string_view rest(at_, end_);
  const std::size_t markup = rest.find_first_of("\\{}");
  return markup != rest.npos && rest.substr(markup).starts_with("{\\rtf");
}

Token Tokenizer::Next() {
  while (at_ != end_) {
    start_ = at_;
    switch (ClassOf(*at_)) {
      case Class::Text:
        return Text();
      case Class::High:
        return High();
      case Class::Open:
        return {.kind = Token::Kind::Open, .text = {at_++, 1}};
      case Class::Close:
        return {.kind = Token::Kind::Close, .text = {at_++, 1}};
      case Class::Control:
        return {.kind = Token::Kind::Byte, .byte = static_cast<unsigned char>(*at_++)};
      case Class::Nothing:
        ++at_;
        break;
      case Class::Escape: {
        const Token token = Escape();
        if (token.kind != Token::Kind::End) return token;
      }
    }
  }
  start_ = end_;
  return {};
}

/// Consumes bytes of one class from `at_` on.
template <class Holds>
std::string_view Tokenizer::While(const char* end, Holds holds) {
  const char* at = at_;  // keeps stores out of the loop
  while (at != end && holds(*at)) ++at;
  return {std::exchange(at_, at), at};
}

Token Tokenizer::Text() {
  const char* const limit = at_ + std::min(end_ - at_, kLongest);
  return {.kind = Token::Kind::Text,
          .text = While(limit, [](char c) { return ClassOf(c) == Class::Text; })};
}

Token Tokenizer::High() {
  const char* const limit = at_ + std::min(end_ - at_, kLongest);
  return {.kind = Token::Kind::High,
          .text = While(limit, [](char c) { return ClassOf(c) == Class::High; })};
}

Token Tokenizer::Escape() {
  if (++at_ == end_) return {};
  if (IsAsciiLetter(*at_)) return Word();
  if (static_cast<unsigned char>(*at_) >= 0x80 || *at_ == 0) return {};
  const char c = *at_++;
  if (c == '\'') return Hex();
  return {.kind = Token::Kind::Symbol, .byte = static_cast<unsigned char>(c)};
}

Token Tokenizer::Hex() {
  int digits[2] = {-1, -1};
  for (int& digit : digits) {
    if (at_ != end_) digit = HexDigit(*at_);
    if (digit < 0) return {};
    ++at_;
  }
  return {.kind = Token::Kind::Byte,
          .byte = static_cast<unsigned char>(digits[0] * 16 + digits[1])};
}

bool Tokenizer::AtText(bool unicode) {
  while (at_ != end_ && ClassOf(*at_) == Class::Nothing) ++at_;
  if (at_ == end_) return false;
  const Class kind = ClassOf(*at_);
  return kind == Class::Text || kind == Class::High || HexValue(at_, end_) >= 0 ||
         (unicode && UnicodeAt(at_, end_).length > 0);
}

template <class Unit, class Decoder>
std::size_t Tokenizer::DecodeWith(Decoder decoder, bool unicode, std::span<Unit> room) {
  Unit* out = room.data();
  const Unit* const limit = out + room.size();
  const bool keepsAscii = decoder.KeepsAscii();
  const char* at = at_;  // keeps stores out of the loop
  while (out != limit && at != end_) {
    if (keepsAscii && end_ - at >= kPlainStep && limit - out >= kPlainStep) {
      const int plain = CopyPlain(at, out);
      at += plain;
      out += plain;
      if (plain == kPlainStep) continue;
    }
    if (const int byte = HexValue(at, end_); byte >= 0) {
      *out++ = decoder.OfByte(static_cast<unsigned char>(byte));
      at += kHexLength;
      continue;
    }
    const Class kind = ClassOf(*at);
    if (kind == Class::Text || kind == Class::High) {
      *out++ = decoder.OfByte(static_cast<unsigned char>(*at++));
    } else if (kind == Class::Nothing) {
      ++at;
    } else {
      const Escaped escaped = unicode ? UnicodeAt(at, end_) : Escaped();
      const Unit unit = decoder.OfUnit(escaped.unit);
      if (unit == 0) break;
      *out++ = unit;
      at += escaped.length;
    }
  }
  at_ = at;
  return static_cast<std::size_t>(out - room.data());
}

std::size_t Tokenizer::Decode(const CodePage& page, bool unicode, std::span<char16_t> room) {
  struct Decoder {
    const CodePage& page;
    bool KeepsAscii() const { return page.KeepsAscii(); }
    char16_t OfByte(unsigned char byte) const { return page[byte]; }
    char16_t OfUnit(char16_t unit) const { return unit; }
  };
  return DecodeWith(Decoder{page}, unicode, room);
}

std::size_t Tokenizer::DecodeToBytes(bool unicode, std::span<char> room) {
  struct Decoder {
    bool KeepsAscii() const { return true; }
    char OfByte(unsigned char byte) const { return static_cast<char>(byte); }
    char OfUnit(char16_t unit) const { return static_cast<char>(ByteOf1252(unit)); }
  };
  return DecodeWith(Decoder{}, unicode, room);
}

Token Tokenizer::Word() {
  Token token{.kind = Token::Kind::Word, .text = While(end_, IsAsciiLetter)};
  const bool negative = IsNegative(at_, end_);
  const char* const digits = at_ + (negative ? 1 : 0);
  const char* at = digits;
  const std::int64_t number = Digits(at, end_);
  token.hasNumber = at != digits;
  token.number = static_cast<int>(negative ? -number : number);
  at_ = at != end_ && *at == ' ' ? at + 1 : at;
  return token.text == "bin" ? Binary(token.number) : token;
}

Token Tokenizer::Binary(int length) {
  const char* const bytes = at_;
  if (length > 0 && length <= end_ - at_) at_ += length;
  return {.kind = Token::Kind::Binary, .text = {bytes, at_}};
}

}  // namespace lumenote
