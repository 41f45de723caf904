// UTF-16 strings: conversions and the few helpers that every layer needs.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "lumenote/Utf8.h"

namespace lumenote {

/// Whether all of `bytes` is well-formed.
bool IsUtf8(std::string_view bytes);

/// Removes spaces (U+0020) at both ends.
std::u16string_view TrimSpaces(std::u16string_view text);
/// Replaces every occurrence of `from` (not empty), left to right; replacements are not scanned
/// again.
std::u16string ReplaceEvery(std::u16string_view text, std::u16string_view from,
                            std::u16string_view to);
/// Turns each lone CR or LF into CR LF.
std::u16string WithCrLf(std::u16string_view text);

/// Parses the first four characters of `text` as hexadecimal digits, if they are.
std::optional<char16_t> UnitFromHex(std::string_view text);
/// Four lower-case hexadecimal digits.
std::string HexOfUnit(char16_t unit);

constexpr bool IsHighSurrogate(char16_t c) { return (c & 0xFC00) == 0xD800; }
constexpr bool IsLowSurrogate(char16_t c) { return (c & 0xFC00) == 0xDC00; }
constexpr bool IsSurrogate(char16_t c) { return (c & 0xF800) == 0xD800; }
/// Whether a surrogate pair begins at `i`.
constexpr bool IsPairAt(std::u16string_view text, std::size_t i) {
  return IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
}

}  // namespace lumenote
