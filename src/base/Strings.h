// UTF-16 strings: conversions at the edges and the few text helpers that every layer needs.
#pragma once
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "lumenote/Utf8.h"

namespace lumenote {

/// Whether `bytes` holds nothing but well-formed sequences.
bool IsUtf8(std::string_view bytes);

/// `text` without blanks (U+0020) at both ends.
std::u16string_view TrimBlanks(std::u16string_view text);
/// `text` with every `from` (not empty) replaced by `to`, left to right, without looking again at
/// what was put in.
std::u16string ReplaceEvery(std::u16string_view text, std::u16string_view from,
                            std::u16string_view to);
/// `text` with each lone CR or LF turned into CR LF.
std::u16string WithCrLf(std::u16string_view text);

/// The UTF-16 unit that the first four characters of `text` give in hexadecimal, if they do.
std::optional<char16_t> UnitFromHex(std::string_view text);
/// Four hexadecimal digits, small letters.
std::string HexOfUnit(char16_t unit);

constexpr bool IsHighSurrogate(char16_t c) { return (c & 0xFC00) == 0xD800; }
constexpr bool IsLowSurrogate(char16_t c) { return (c & 0xFC00) == 0xDC00; }
constexpr bool IsSurrogate(char16_t c) { return (c & 0xF800) == 0xD800; }
/// Whether the two units from `i` on are one character.
constexpr bool IsPairAt(std::u16string_view text, std::size_t i) {
  return IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
}

}  // namespace lumenote
