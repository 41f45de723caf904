// Character classes (letter, digit) and case mapping, independent of the locale: Latin, Greek and
// Cyrillic scripts behave the same on every system.
#pragma once
#include <array>
#include <string>
#include <string_view>

namespace lumenote {

/// Maps UTF-16 units one to one. It covers two blocks, Latin to Cyrillic, and Latin Extended
/// Additional to Greek Extended; every other character maps to itself.
struct CaseTable {
  static constexpr int kLowEnd = 0x0530;
  static constexpr int kHighStart = 0x1E00;
  static constexpr int kHighEnd = 0x2000;

  std::array<char16_t, kLowEnd> low;
  std::array<char16_t, kHighEnd - kHighStart> high;

  constexpr char16_t Map(char16_t c) const {
    if (c < kLowEnd) return low[c];
    return c >= kHighStart && c < kHighEnd ? high[c - kHighStart] : c;
  }
};

extern const CaseTable kSmallLetters;
extern const CaseTable kCapitalLetters;

inline char16_t ToLower(char16_t c) { return kSmallLetters.Map(c); }
/// A letter whose capital is not a single unit (ß) is unchanged.
inline char16_t ToUpper(char16_t c) { return kCapitalLetters.Map(c); }
/// The result is always as long as `text`.
std::u16string Lower(std::u16string_view text);
std::u16string Upper(std::u16string_view text);

bool IsLetterBeyondAscii(char16_t c);
bool IsWordCharacterBeyondAscii(char16_t c);

/// A letter of any script, accented ones included; surrogates count as letters.
inline bool IsLetter(char16_t c) {
  if (c >= 0x80) return IsLetterBeyondAscii(c);
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// A character of a whole word: a letter, a combining mark, a digit or the underscore.
inline bool IsWordCharacter(char16_t c) {
  if (c >= 0x80) return IsWordCharacterBeyondAscii(c);
  return IsLetter(c) || (c >= u'0' && c <= u'9') || c == u'_';
}

}  // namespace lumenote
