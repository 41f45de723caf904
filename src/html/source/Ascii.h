// Character classes of HTML's syntax, which are ASCII only.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

constexpr bool IsHtmlSpace(char16_t c) {
  return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}
constexpr bool IsAsciiDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
constexpr char16_t AsciiLower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + (u'a' - u'A')) : c;
}
constexpr bool IsAsciiLetter(char16_t c) { return AsciiLower(c) >= u'a' && AsciiLower(c) <= u'z'; }
/// The value of a hexadecimal digit, or -1.
constexpr int HexDigit(char16_t c) {
  const char16_t low = AsciiLower(c);
  if (IsAsciiDigit(c)) return c - u'0';
  return low >= u'a' && low <= u'f' ? low - u'a' + 10 : -1;
}

constexpr std::u16string_view TrimHtml(std::u16string_view text) {
  while (!text.empty() && IsHtmlSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsHtmlSpace(text.back())) text.remove_suffix(1);
  return text;
}

/// Whether `text` begins with `lower`, which has no capitals, in any letter case.
constexpr bool StartsWithName(std::u16string_view text, std::u16string_view lower) {
  if (text.size() < lower.size()) return false;
  for (std::size_t i = 0; i < lower.size(); ++i)
    if (AsciiLower(text[i]) != lower[i]) return false;
  return true;
}
constexpr bool IsName(std::u16string_view text, std::u16string_view lower) {
  return text.size() == lower.size() && StartsWithName(text, lower);
}

/// For comparison with names: small letters; "?" for what is not ASCII.
inline std::string NameOf(std::u16string_view text) {
  std::string name;
  for (const char16_t c : text) name += c < 0x80 ? static_cast<char>(AsciiLower(c)) : '?';
  return name;
}

}  // namespace lumenote
