// UTF-8 and UTF-16 conversions, and small text helpers.
#include "base/Strings.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>

namespace lumenote {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// The first character of a text and its length in units. For an ill-formed sequence the length is
/// its longest valid prefix, at least one unit, as Unicode recommends.
struct Decoded {
  char32_t character;
  std::size_t length;
  bool valid;
};

Decoded DecodeUtf16(std::u16string_view text) {
  const char16_t first = text[0];
  if (IsPairAt(text, 0)) {
    return {0x10000 + ((first & 0x3FFu) << 10) + (text[1] & 0x3FFu), 2, true};
  }
  if (IsSurrogate(first)) return {kReplacement, 1, false};
  return {first, 1, true};
}

/// What a lead byte requires: the number of trailing bytes, and the range of the first of them,
/// which excludes overlong forms, surrogates and values above U+10FFFF.
struct Utf8Lead {
  std::size_t trailing;
  std::uint8_t low;
  std::uint8_t high;
};

Utf8Lead LeadOf(std::uint8_t byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return {1, 0x80, 0xBF};
  if (byte == 0xE0) return {2, 0xA0, 0xBF};
  if (byte == 0xED) return {2, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {2, 0x80, 0xBF};
  if (byte == 0xF0) return {3, 0x90, 0xBF};
  if (byte == 0xF4) return {3, 0x80, 0x8F};
  if (byte >= 0xF1 && byte <= 0xF3) return {3, 0x80, 0xBF};
  return {0, 0, 0};
}

Decoded DecodeUtf8(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
  if (byte(0) < 0x80) return {byte(0), 1, true};
  const Utf8Lead lead = LeadOf(byte(0));
  if (lead.trailing == 0) return {kReplacement, 1, false};
  char32_t character = byte(0) & (0x3Fu >> lead.trailing);
  for (std::size_t i = 1; i <= lead.trailing; ++i) {
    const std::uint8_t low = i == 1 ? lead.low : 0x80;
    const std::uint8_t high = i == 1 ? lead.high : 0xBF;
    if (i == bytes.size() || byte(i) < low || byte(i) > high) return {kReplacement, i, false};
    character = character << 6 | (byte(i) & 0x3Fu);
  }
  return {character, lead.trailing + 1, true};
}

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
    return;
  }
  const int trailing = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  const char32_t mark = trailing == 1 ? 0xC0 : trailing == 2 ? 0xE0 : 0xF0;
  out += static_cast<char>(mark | c >> 6 * trailing);
  for (int i = trailing - 1; i >= 0; --i) out += static_cast<char>(0x80 | (c >> 6 * i & 0x3F));
}

void AppendUtf16(std::u16string& out, char32_t c) {
  if (c < 0x10000) {
    out += static_cast<char16_t>(c);
    return;
  }
  out += static_cast<char16_t>(0xD7C0 + (c >> 10));
  out += static_cast<char16_t>(0xDC00 | (c & 0x3FF));
}

}  // namespace

std::string ToUtf8(std::u16string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const Decoded decoded = DecodeUtf16(text);
    AppendUtf8(out, decoded.character);
    text.remove_prefix(decoded.length);
  }
  return out;
}

std::u16string FromUtf8(std::string_view bytes) {
  std::u16string out;
  out.reserve(bytes.size());
  while (!bytes.empty()) {
    const Decoded decoded = DecodeUtf8(bytes);
    AppendUtf16(out, decoded.character);
    bytes.remove_prefix(decoded.length);
  }
  return out;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const Decoded decoded = DecodeUtf8(bytes);
    if (!decoded.valid) return false;
    bytes.remove_prefix(decoded.length);
  }
  return true;
}

std::u16string_view TrimSpaces(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string ReplaceEvery(std::u16string_view text, std::u16string_view from,
                            std::u16string_view to) {
  std::u16string out;
  out.reserve(text.size());
  std::size_t start = 0;
  for (std::size_t hit; (hit = text.find(from, start)) != std::u16string_view::npos;
       start = hit + from.size()) {
    out.append(text, start, hit - start).append(to);
  }
  return out.append(text, start);
}

std::u16string WithCrLf(std::u16string_view text) {
  std::u16string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != u'\r' && text[i] != u'\n') {
      out += text[i];
      continue;
    }
    if (text.substr(i, 2) == u"\r\n") ++i;
    out += u"\r\n";
  }
  return out;
}

std::optional<char16_t> UnitFromHex(std::string_view text) {
  constexpr std::size_t kDigits = 4;
  if (text.size() < kDigits) return std::nullopt;
  std::uint16_t unit = 0;
  const char* end = text.data() + kDigits;
  const auto read = std::from_chars(text.data(), end, unit, 16);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return unit;
}

std::string HexOfUnit(char16_t unit) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string digits;
  for (int shift = 12; shift >= 0; shift -= 4) digits += kHex[unit >> shift & 0xF];
  return digits;
}

}  // namespace lumenote
