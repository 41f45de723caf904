#include "base/TextForm.h"

#include <algorithm>
#include <cstddef>

#include "base/Strings.h"
#include "base/Windows1252.h"

namespace lumenote {

namespace {

constexpr std::size_t kLongestMark = 3;
constexpr std::size_t kLongestUtf8 = 4;

bool IsAscii(std::string_view bytes) {
  return std::ranges::none_of(bytes, [](char c) { return (c & 0x80) != 0; });
}

/// In valid UTF-8.
bool HasC1Control(std::string_view bytes) {
  for (std::size_t at = 0; (at = bytes.find('\xC2', at)) != bytes.npos; ++at)
    if (static_cast<unsigned char>(bytes[at + 1]) < 0xA0) return true;
  return false;
}

/// Whether `FormOfText` takes them for UTF-8, be they more than ASCII.
bool IsPlainUtf8(std::string_view bytes) { return IsUtf8(bytes) && !HasC1Control(bytes); }

/// Where the last character of UTF-8 begins that more bytes could belong to, else the end.
std::size_t OpenEnd(std::string_view bytes) {
  const std::size_t first = bytes.size() - std::min(bytes.size(), kLongestUtf8 - 1);
  for (std::size_t at = bytes.size(); at-- > first;)
    if (static_cast<unsigned char>(bytes[at]) >= 0xC0) return at;
  return bytes.size();
}

/// Whether no surrogate stands alone.
bool IsUnicode(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsSurrogate(text[i])) continue;
    if (!IsPairAt(text, i)) return false;
    ++i;
  }
  return true;
}

/// `low`: index of the low byte in each pair.
std::u16string DecodeUtf16(std::string_view bytes, std::size_t low) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto least = static_cast<unsigned char>(bytes[i + low]);
    const auto most = static_cast<unsigned char>(bytes[i + 1 - low]);
    text += static_cast<char16_t>(most << 8 | least);
  }
  return text;
}

std::string EncodeUtf16(std::u16string_view text, std::size_t low) {
  std::string bytes(text.size() * 2, '\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    bytes[2 * i + low] = static_cast<char>(text[i] & 0xFF);
    bytes[2 * i + 1 - low] = static_cast<char>(text[i] >> 8);
  }
  return bytes;
}

}  // namespace

std::string_view MarkOf(TextForm form) {
  switch (form) {
    case TextForm::MarkedUtf8:
      return "\xEF\xBB\xBF";
    case TextForm::LittleUtf16:
      return "\xFF\xFE";
    case TextForm::BigUtf16:
      return "\xFE\xFF";
    default:
      return {};
  }
}

void FormOfPieces::Add(std::string_view bytes) {
  start_ += bytes.substr(0, kLongestMark - start_.size());
  std::string joined;
  if (!open_.empty()) bytes = joined = open_ + std::string(bytes);
  const std::size_t end = OpenEnd(bytes);
  open_ = bytes.substr(end);
  bytes = bytes.substr(0, end);
  ascii_ = ascii_ && IsAscii(bytes);
  utf8_ = utf8_ && IsPlainUtf8(bytes);
}

TextForm FormOfPieces::Form() const {
  for (const TextForm form : {TextForm::MarkedUtf8, TextForm::LittleUtf16, TextForm::BigUtf16})
    if (start_.starts_with(MarkOf(form))) return form;
  const bool utf8 = utf8_ && IsPlainUtf8(open_) && !(ascii_ && open_.empty());
  return utf8 ? TextForm::Utf8 : TextForm::Windows1252;
}

TextForm FormOfText(std::string_view bytes) {
  FormOfPieces pieces;
  pieces.Add(bytes);
  return pieces.Form();
}

void FormForPieces::Add(std::u16string_view text) {
  unicode_ = unicode_ && IsUnicode(text);
  fits_ = fits_ && Fits1252(text);
  if (fits_) bytes_.Add(Encode1252(text));
}

TextForm FormForPieces::Form() const {
  if (fits_ && bytes_.Form() == TextForm::Windows1252) return TextForm::Windows1252;
  return unicode_ ? TextForm::MarkedUtf8 : TextForm::LittleUtf16;
}

TextForm FormFor(std::u16string_view text) {
  if (Fits1252(text)) return TextForm::Windows1252;
  return IsUnicode(text) ? TextForm::MarkedUtf8 : TextForm::LittleUtf16;
}

std::u16string DecodeText(std::string_view bytes, TextForm form) {
  bytes.remove_prefix(std::min(MarkOf(form).size(), bytes.size()));
  switch (form) {
    case TextForm::Windows1252:
      return Decode1252(bytes);
    case TextForm::LittleUtf16:
      return DecodeUtf16(bytes, 0);
    case TextForm::BigUtf16:
      return DecodeUtf16(bytes, 1);
    default:
      return FromUtf8(bytes);
  }
}

std::string EncodeWithoutMark(std::u16string_view text, TextForm form) {
  switch (form) {
    case TextForm::Windows1252:
      return Encode1252(text);
    case TextForm::LittleUtf16:
      return EncodeUtf16(text, 0);
    case TextForm::BigUtf16:
      return EncodeUtf16(text, 1);
    default:
      return ToUtf8(text);
  }
}

std::string EncodeText(std::u16string_view text, TextForm form) {
  return std::string(MarkOf(form)) + EncodeWithoutMark(text, form);
}

std::string EncodeTextFile(std::u16string_view text, TextForm form) {
  if (form != TextForm::Utf8 && form != TextForm::MarkedUtf8) {
    FormForPieces pieces;
    pieces.Add(text);
    return EncodeText(text, pieces.Form());
  }
  if (!IsUnicode(text)) return EncodeText(text, TextForm::LittleUtf16);
  std::string bytes = EncodeText(text, form);
  const bool known = FormOfText(bytes) == form || IsAscii(bytes);
  return known ? bytes : EncodeText(text, TextForm::MarkedUtf8);
}

}  // namespace lumenote
