// The lexical rules of RTF.
#include "rtf/Tokenizer.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

#include "rtf/PlainText.h"

namespace lumenote {
namespace {

enum class Class : std::uint8_t { Text, High, Nothing, Control, Open, Close, Escape };

constexpr std::array<Class, 256> kClasses = [] {
  std::array<Class, 256> classes{};
  for (int c = 0; c < 0x20; ++c) classes[c] = Class::Control;
  for (int c = 0x80; c < 0x100; ++c) classes[c] = Class::High;
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

}  // namespace

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

/// What the escape at hand stands for when it is a whole \'xx of a printable byte, else -1.
inline int Tokenizer::HexValue() const {
  if (end_ - at_ < kHexLength || at_[1] != '\'') return -1;
  const int high = HexDigit(at_[2]);
  const int low = HexDigit(at_[3]);
  return high >= 2 && low >= 0 ? high * 16 + low : -1;
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

Token Tokenizer::Text() {
  const char* const limit = at_ + std::min(end_ - at_, kLongest);
  while (at_ != limit && ClassOf(*at_) == Class::Text) ++at_;
  return {.kind = Token::Kind::Text, .text = {start_, at_}};
}

Token Tokenizer::High() {
  const char* const limit = at_ + std::min(end_ - at_, kLongest);
  while (at_ != limit && ClassOf(*at_) == Class::High) ++at_;
  return {.kind = Token::Kind::High, .text = {start_, at_}};
}

Token Tokenizer::Escape() {
  if (++at_ == end_) return {};
  if (IsAsciiLetter(*at_)) return Word();
  if (ClassOf(*at_) == Class::High || *at_ == 0) return {};
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

bool Tokenizer::AtText() {
  while (at_ != end_ && ClassOf(*at_) == Class::Nothing) ++at_;
  if (at_ == end_) return false;
  const Class kind = ClassOf(*at_);
  return kind == Class::Text || kind == Class::High || (kind == Class::Escape && HexValue() >= 0);
}

std::size_t Tokenizer::Decode(const CodePage& page, char16_t* out, std::size_t room) {
  const char16_t* const begin = out;
  const char16_t* const limit = out + room;
  while (out != limit && at_ != end_) {
    if (page.KeepsAscii() && end_ - at_ >= kPlainStep && limit - out >= kPlainStep) {
      const int plain = CopyPlain(at_, out);
      at_ += plain;
      out += plain;
      if (plain == kPlainStep) continue;
    }
    const Class kind = ClassOf(*at_);
    if (kind == Class::Text || kind == Class::High) {
      *out++ = page[static_cast<unsigned char>(*at_++)];
    } else if (kind == Class::Escape) {
      const int byte = HexValue();
      if (byte < 0) break;
      *out++ = page[static_cast<unsigned char>(byte)];
      at_ += kHexLength;
    } else if (kind == Class::Nothing) {
      ++at_;
    } else {
      break;
    }
  }
  return static_cast<std::size_t>(out - begin);
}

Token Tokenizer::Word() {
  const char* const name = at_;
  while (at_ != end_ && IsAsciiLetter(*at_)) ++at_;
  Token token{.kind = Token::Kind::Word, .text = {name, at_}};
  Number(token);
  if (at_ != end_ && *at_ == ' ') ++at_;
  return token.text == "bin" ? Binary(token.number) : token;
}

void Tokenizer::Number(Token& word) {
  const bool negative = end_ - at_ > 1 && *at_ == '-' && IsDigit(at_[1]);
  if (negative) ++at_;
  constexpr std::int64_t kMost = std::numeric_limits<int>::max();
  std::int64_t number = 0;
  for (; at_ != end_ && IsDigit(*at_); ++at_) {
    number = std::min(kMost, number * 10 + (*at_ - '0'));
    word.hasNumber = true;
  }
  word.number = static_cast<int>(negative ? -number : number);
}

Token Tokenizer::Binary(int length) {
  const char* const bytes = at_;
  if (length > 0 && length <= end_ - at_) at_ += length;
  return {.kind = Token::Kind::Binary, .text = {bytes, at_}};
}

}  // namespace lumenote
