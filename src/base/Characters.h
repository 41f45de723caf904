// What a character is (letter, digit) and its other case, without a locale: French and the other
// languages written in Latin, Greek and Cyrillic letters come out right on every system.
#pragma once
#include <array>
#include <string>
#include <string_view>

namespace lumenote {

/// One case mapping, unit by unit: the blocks from Latin to Cyrillic, and those of additional Latin
/// and polytonic Greek letters. A character outside both stands for itself.
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
/// A letter without a capital of one unit (ß) stays as it is.
inline char16_t ToUpper(char16_t c) { return kCapitalLetters.Map(c); }
/// As long as `text`, always.
std::u16string Lower(std::u16string_view text);
std::u16string Upper(std::u16string_view text);

bool IsLetterBeyondAscii(char16_t c);
bool IsWordCharacterBeyondAscii(char16_t c);

/// A letter of any script, accented ones included (surrogates count as letters).
inline bool IsLetter(char16_t c) {
  if (c >= 0x80) return IsLetterBeyondAscii(c);
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// A letter, a mark that combines with one, a digit or the underscore: what a whole word is made
/// of.
inline bool IsWordCharacter(char16_t c) {
  if (c >= 0x80) return IsWordCharacterBeyondAscii(c);
  return IsLetter(c) || (c >= u'0' && c <= u'9') || c == u'_';
}

}  // namespace lumenote
