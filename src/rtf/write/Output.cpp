// Buffering, and RTF's lexical rules for writing.
#include "rtf/write/Output.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "base/codepages/CodePage.h"
#include "document/kept/Kept.h"
#include "rtf/source/PlainText.h"
#include "rtf/words/Spellings.h"

namespace lumenote {
namespace {

constexpr std::size_t kHexLength = 4;     // of \'xx
constexpr std::size_t kSymbolLength = 2;  // of \-

using Escape = std::array<char, kHexLength>;

constexpr std::array<Escape, 256> kEscapes = [] {
  constexpr char kDigits[] = "0123456789abcdef";
  std::array<Escape, 256> escapes{};
  for (unsigned byte = 0; byte < escapes.size(); ++byte)
    escapes[byte] = {'\\', '\'', kDigits[byte >> 4], kDigits[byte & 15]};
  return escapes;
}();

char* PutHex(int byte, char* out) {
  std::memcpy(out, kEscapes[static_cast<std::size_t>(byte)].data(), kHexLength);
  return out + kHexLength;
}

/// The written form of a byte of page 1252: literal or escaped. Characters with a symbol of their
/// own or a special meaning have none.
struct Form {
  Escape text{};
  std::uint8_t length = 0;  // 0 if there is none
};

constexpr std::array<Form, 256> kForms = [] {
  std::array<Form, 256> forms{};
  for (unsigned byte = 0; byte < forms.size(); ++byte) {
    if (IsPlain(static_cast<char16_t>(byte))) {
      forms[byte] = {{static_cast<char>(byte)}, 1};
    } else if (byte >= 0x80 && byte != 0xA0 && byte != 0xAD) {
      forms[byte] = {kEscapes[byte], kHexLength};
    }
  }
  return forms;
}();

/// The forms of all of page 1252, and of ASCII only.
struct WindowsForms {
  static const Form& Of(char16_t unit) { return kForms[ByteOf1252(unit)]; }
  static const Form& Of(char byte) { return kForms[static_cast<unsigned char>(byte)]; }
};
struct AsciiForms {
  template <class Unit>
  static const Form& Of(Unit c) {
    const std::make_unsigned_t<Unit> number = c;
    return kForms[number < 0x80 ? number : 0];
  }
};

/// Writes the longest prefix of `text` whose characters have forms and returns its length. Needs
/// space for `kHexLength` bytes per unit and may write beyond the result.
template <class Forms, class Unit>
std::size_t PutForms(std::basic_string_view<Unit> text, char*& out) {
  const Unit* at = text.data();
  const Unit* const end = at + text.size();
  char* to = out;  // keeps stores out of the loop
  while (at != end) {
    // Needs one character more than a step, since the character after it is examined too.
    if (end - at > kPlainStep) {
      const int plain = CopyPlain(at, to);
      at += plain;
      to += plain;
    }
    // Plain and escaped characters are about equally frequent: a table avoids mispredicted
    // branches.
    const Form& form = Forms::Of(*at);
    std::memcpy(to, form.text.data(), kHexLength);
    if (form.length == 0) break;
    to += form.length;
    ++at;
  }
  out = to;
  return static_cast<std::size_t>(at - text.data());
}

/// The byte that reads back as `unit`, or -1.
int ByteFor(char16_t unit, Encoding encoding) {
  if (unit == 0) return -1;
  if (unit <= u' ') return unit;
  if (encoding == Encoding::Windows) return ByteIn1252(unit);
  if (encoding == Encoding::Symbols) return unit > 0xF020 && unit < 0xF100 ? unit - 0xF000 : -1;
  return unit < 0x80 ? unit : -1;
}

/// The symbol of a character that has one, else empty.
std::string_view SymbolFor(char16_t unit) {
  switch (unit) {
    case u'\\':
      return "\\\\";
    case u'{':
      return "\\{";
    case u'}':
      return "\\}";
    case u'\u00A0':
      return "\\~";
    default:
      return {};
  }
}

/// Whether a character has a special meaning.
bool StopsText(char16_t unit) {
  return unit == u'\t' || unit == u'\v' || unit == u'\r' || unit == kObjectCharacter;
}

}  // namespace

Output::Output(const ByteSink& sink, int page)
    : sink_(sink), page_(page), buffer_(kPiece + kShort) {}

void Output::Append(std::string_view source) {
  if (source.size() > kShort) return AppendLong(source);
  std::copy_n(source.data(), source.size(), buffer_.data() + size_);
  Grow(source.size());
}

void Output::AppendLong(std::string_view source) {
  if (source.size() > kPiece) {
    Flush();
    waiting_.push_back({{}, source});
    return;
  }
  for (; source.size() > kShort; source.remove_prefix(kShort)) Append(source.substr(0, kShort));
  Append(source);
}

void Output::Grow(std::size_t count) {
  size_ += count;
  if (size_ >= kPiece) Flush();
}

void Output::Flush() {
  const std::string_view gathered(buffer_.data(), size_);
  if (Waits())
    waiting_.push_back({std::string(gathered), {}});
  else
    sink_(gathered);
  size_ = 0;
}

bool Output::HandOn() {
  if (!Waits()) return false;
  Waiting& next = waiting_.front();
  if (next.lasting.empty()) {
    sink_(next.gathered);
  } else {
    sink_(next.lasting.substr(0, kPiece));
    next.lasting.remove_prefix(std::min(kPiece, next.lasting.size()));
  }
  if (next.lasting.empty()) waiting_.pop_front();
  return true;
}

void Output::Word(std::string_view name) {
  buffer_[size_] = '\\';
  std::copy_n(name.data(), name.size(), buffer_.data() + size_ + 1);
  Grow(name.size() + 1);
  openWord_ = true;
  afterText_ = false;
}

void Output::Word(std::string_view name, int number) {
  constexpr std::size_t kLongestNumber = 11;
  Word(name);
  char* const digits = buffer_.data() + size_;
  Grow(static_cast<std::size_t>(std::to_chars(digits, digits + kLongestNumber, number).ptr -
                                digits));
}

void Output::Reset(bool behindText) {
  if (afterText_ && !behindText) Raw("{}");
  Word("plain");
  hasReset_ = true;
}

void Output::Symbol(std::string_view name) {
  Word(name);
  afterText_ = true;
}

void Output::Words(std::string_view source) {
  if (source.empty()) return;
  Append(source);
  openWord_ = source.back() != '}';
  afterText_ = false;
}

void Output::Raw(std::string_view source) {
  Append(source);
  openWord_ = false;
  afterText_ = false;
}

void Output::Hex(int byte) {
  PutHex(byte, buffer_.data() + size_);
  Grow(kHexLength);
  openWord_ = false;
}

void Output::Unicode(char16_t unit) {
  Word("u", static_cast<std::int16_t>(unit));
  Raw("?");
}

template <class Forms, class Unit>
std::size_t Output::WriteForms(std::basic_string_view<Unit> text) {
  if (text.empty()) return 0;
  if (openWord_ && IsPlain(TextView(text).Front())) Raw(" ");
  std::size_t done = 0;
  std::size_t count = 0;
  std::size_t room = 0;
  do {
    room = (buffer_.size() - size_) / kHexLength;
    char* out = buffer_.data() + size_;
    count = PutForms<Forms>(text.substr(done, room), out);
    Grow(static_cast<std::size_t>(out - buffer_.data()) - size_);
    done += count;
  } while (count == room);
  if (done > 0) openWord_ = false;
  afterText_ |= done > 0;
  return done;
}

std::size_t Output::Plain(TextView text) {
  return text.Visit([this](auto own) { return WriteForms<AsciiForms>(own); });
}

std::size_t Output::Text(TextView text, Encoding encoding, Spelling spelling) {
  return text.Visit([=, this](auto own) { return TextAs(own, encoding, spelling); });
}

template <class Unit>
std::size_t Output::TextAs(std::basic_string_view<Unit> text, Encoding encoding,
                           Spelling spelling) {
  const Encoding forms = spelling == Spelling::Usual ? encoding : Encoding::UnicodeOnly;
  std::size_t done = 0;
  while (done < text.size()) {
    const auto rest = text.substr(done);
    const std::size_t some = WriteEncoded(rest, forms);
    done += some;
    if (some > 0) continue;
    const char16_t unit = TextView(rest).Front();
    if (StopsText(unit)) break;
    if (HasSpellings(unit))
      Spelled(unit, encoding, spelling);
    else
      Character(unit, encoding);
    ++done;
  }
  return done;
}

template <class Unit>
std::size_t Output::WriteEncoded(std::basic_string_view<Unit> text, Encoding encoding) {
  switch (encoding) {
    case Encoding::Windows:
      return WriteForms<WindowsForms>(text);
    case Encoding::Symbols:
      return WriteForms<AsciiForms>(text.substr(0, text.front() == ' ' ? 1 : 0));
    default:
      return WriteForms<AsciiForms>(text);
  }
}

void Output::Character(char16_t unit, Encoding encoding) {
  if (const std::string_view symbol = SymbolFor(unit); !symbol.empty()) {
    Raw(symbol);
  } else if (const int byte = ByteFor(unit, encoding); byte >= 0) {
    Hex(byte);
  } else if (unit != 0 && !(encoding == Encoding::Document && InDocumentPage(unit))) {
    Unicode(unit);
  }
  afterText_ = true;
}

void Output::Spelled(char16_t unit, Encoding encoding, Spelling spelling) {
  const bool foreign = encoding != Encoding::Windows;
  if (spelling == Spelling::Usual) spelling = UsualSpelling(unit, foreign);
  const std::string_view name = NameOf(unit);
  if (spelling == Spelling::Usual || (spelling == Spelling::Code && unit == kSoftHyphen))
    return Character(unit, encoding);
  if (spelling == Spelling::Name && !name.empty()) {
    Words(name);
    openWord_ = name.size() > kSymbolLength;
  } else {
    Unicode(unit);
  }
  afterText_ = true;
}

bool Output::InDocumentPage(char16_t unit) {
  const std::string bytes = EncodeCodePage(page_, unit);
  for (const char byte : bytes) Hex(static_cast<unsigned char>(byte));
  return !bytes.empty();
}

}  // namespace lumenote
