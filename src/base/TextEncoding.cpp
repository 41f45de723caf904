#include "base/TextEncoding.h"

#include <algorithm>
#include <cstddef>

#include "base/Strings.h"
#include "base/Windows1252.h"

namespace lumenote {

namespace {

constexpr std::size_t kLongestBom = 3;
constexpr std::size_t kLongestUtf8 = 4;

bool IsAscii(std::string_view bytes) {
  return std::ranges::none_of(bytes, [](char c) { return (c & 0x80) != 0; });
}

/// `bytes` must be valid UTF-8.
bool HasC1Control(std::string_view bytes) {
  for (std::size_t at = 0; (at = bytes.find('\xC2', at)) != bytes.npos; ++at)
    if (static_cast<unsigned char>(bytes[at + 1]) < 0xA0) return true;
  return false;
}

/// Whether `DetectEncoding` would take the bytes for UTF-8 if they are not all ASCII.
bool IsPlainUtf8(std::string_view bytes) { return IsUtf8(bytes) && !HasC1Control(bytes); }

/// Where a last, possibly incomplete UTF-8 character begins, else the end.
std::size_t OpenEnd(std::string_view bytes) {
  const std::size_t first = bytes.size() - std::min(bytes.size(), kLongestUtf8 - 1);
  for (std::size_t at = bytes.size(); at-- > first;)
    if (static_cast<unsigned char>(bytes[at]) >= 0xC0) return at;
  return bytes.size();
}

/// Whether there is no unpaired surrogate.
bool IsWellFormed(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsSurrogate(text[i])) continue;
    if (!IsPairAt(text, i)) return false;
    ++i;
  }
  return true;
}

/// `low` is the index of the low byte in each pair.
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

std::string_view ByteOrderMark(TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::Utf8WithBom:
      return "\xEF\xBB\xBF";
    case TextEncoding::Utf16Le:
      return "\xFF\xFE";
    case TextEncoding::Utf16Be:
      return "\xFE\xFF";
    default:
      return {};
  }
}

void EncodingDetector::Add(std::string_view bytes) {
  start_ += bytes.substr(0, kLongestBom - start_.size());
  std::string joined;
  if (!open_.empty()) bytes = joined = open_ + std::string(bytes);
  const std::size_t end = OpenEnd(bytes);
  open_ = bytes.substr(end);
  bytes = bytes.substr(0, end);
  ascii_ = ascii_ && IsAscii(bytes);
  utf8_ = utf8_ && IsPlainUtf8(bytes);
}

TextEncoding EncodingDetector::Encoding() const {
  for (const TextEncoding encoding :
       {TextEncoding::Utf8WithBom, TextEncoding::Utf16Le, TextEncoding::Utf16Be})
    if (start_.starts_with(ByteOrderMark(encoding))) return encoding;
  const bool utf8 = utf8_ && IsPlainUtf8(open_) && !(ascii_ && open_.empty());
  return utf8 ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

TextEncoding DetectEncoding(std::string_view bytes) {
  EncodingDetector pieces;
  pieces.Add(bytes);
  return pieces.Encoding();
}

void EncodingChooser::Add(std::u16string_view text) {
  wellFormed_ = wellFormed_ && IsWellFormed(text);
  fits_ = fits_ && Fits1252(text);
  if (fits_) bytes_.Add(Encode1252(text));
}

TextEncoding EncodingChooser::Encoding() const {
  if (fits_ && bytes_.Encoding() == TextEncoding::Windows1252) return TextEncoding::Windows1252;
  return wellFormed_ ? TextEncoding::Utf8WithBom : TextEncoding::Utf16Le;
}

TextEncoding EncodingFor(std::u16string_view text) {
  if (Fits1252(text)) return TextEncoding::Windows1252;
  return IsWellFormed(text) ? TextEncoding::Utf8WithBom : TextEncoding::Utf16Le;
}

std::u16string DecodeText(std::string_view bytes, TextEncoding encoding) {
  bytes.remove_prefix(std::min(ByteOrderMark(encoding).size(), bytes.size()));
  switch (encoding) {
    case TextEncoding::Windows1252:
      return Decode1252(bytes);
    case TextEncoding::Utf16Le:
      return DecodeUtf16(bytes, 0);
    case TextEncoding::Utf16Be:
      return DecodeUtf16(bytes, 1);
    default:
      return FromUtf8(bytes);
  }
}

std::string EncodeWithoutBom(std::u16string_view text, TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::Windows1252:
      return Encode1252(text);
    case TextEncoding::Utf16Le:
      return EncodeUtf16(text, 0);
    case TextEncoding::Utf16Be:
      return EncodeUtf16(text, 1);
    default:
      return ToUtf8(text);
  }
}

std::string EncodeText(std::u16string_view text, TextEncoding encoding) {
  return std::string(ByteOrderMark(encoding)) + EncodeWithoutBom(text, encoding);
}

std::string EncodeTextFile(std::u16string_view text, TextEncoding encoding) {
  if (encoding != TextEncoding::Utf8 && encoding != TextEncoding::Utf8WithBom) {
    EncodingChooser pieces;
    pieces.Add(text);
    return EncodeText(text, pieces.Encoding());
  }
  if (!IsWellFormed(text)) return EncodeText(text, TextEncoding::Utf16Le);
  std::string bytes = EncodeText(text, encoding);
  const bool known = DetectEncoding(bytes) == encoding || IsAscii(bytes);
  return known ? bytes : EncodeText(text, TextEncoding::Utf8WithBom);
}

}  // namespace lumenote
