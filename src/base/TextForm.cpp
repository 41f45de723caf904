#include "base/TextForm.h"

#include <algorithm>
#include <cstddef>

#include "base/Strings.h"
#include "base/Windows1252.h"

namespace lumenote {

namespace {

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

bool IsAscii(std::string_view bytes) {
  return std::ranges::none_of(bytes, [](char c) { return (c & 0x80) != 0; });
}

/// In valid UTF-8.
bool HasC1Control(std::string_view bytes) {
  for (std::size_t at = 0; (at = bytes.find('\xC2', at)) != bytes.npos; ++at)
    if (static_cast<unsigned char>(bytes[at + 1]) < 0xA0) return true;
  return false;
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

}  // namespace

TextForm FormOfText(std::string_view bytes) {
  for (const TextForm form : {TextForm::MarkedUtf8, TextForm::LittleUtf16, TextForm::BigUtf16})
    if (bytes.starts_with(MarkOf(form))) return form;
  const bool utf8 = !IsAscii(bytes) && IsUtf8(bytes) && !HasC1Control(bytes);
  return utf8 ? TextForm::Utf8 : TextForm::Windows1252;
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

std::string EncodeText(std::u16string_view text, TextForm form) {
  return std::string(MarkOf(form)) + EncodeWithoutMark(text, form);
}

std::string EncodeTextFile(std::u16string_view text, TextForm form) {
  const bool utf8 = form == TextForm::Utf8 || form == TextForm::MarkedUtf8;
  const TextForm wanted = utf8 ? form : TextForm::Windows1252;
  const bool holds = utf8 ? IsUnicode(text) : Fits1252(text);
  if (holds) {
    std::string bytes = EncodeText(text, wanted);
    if (FormOfText(bytes) == wanted || IsAscii(bytes)) return bytes;
  }
  return EncodeText(text, IsUnicode(text) ? TextForm::MarkedUtf8 : TextForm::LittleUtf16);
}

}  // namespace lumenote
