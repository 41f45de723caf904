#include "html/words/ListNumbers.h"

#include <string_view>

#include "base/Characters.h"
#include "base/RomanNumber.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

std::u16string Letters(int number) {
  std::u16string letters;
  for (; number > 0; number = (number - 1) / 26)
    letters.insert(letters.begin(), static_cast<char16_t>(u'a' + (number - 1) % 26));
  return letters;
}

/// The number of a few digits, the first of which counts `first`; 0 if there are others.
int Positional(std::u16string_view text, std::u16string_view digits, int first, std::size_t most) {
  if (text.size() > most) return 0;
  int value = 0;
  for (const char16_t c : text) {
    const std::size_t digit = digits.find(c);
    if (digit == digits.npos) return 0;
    value = value * static_cast<int>(digits.size()) + static_cast<int>(digit) + first;
  }
  return value;
}

int OfRoman(std::u16string_view text) {
  constexpr std::size_t kLongest = 15;
  constexpr std::u16string_view kDigits = u"ivxlcdm";
  constexpr int kValues[] = {1, 5, 10, 50, 100, 500, 1000};
  if (text.size() > kLongest) return 0;
  int value = 0;
  int last = 0;
  for (std::size_t i = text.size(); i-- > 0;) {
    const std::size_t digit = kDigits.find(text[i]);
    if (digit == kDigits.npos) return 0;
    value += kValues[digit] < last ? -kValues[digit] : kValues[digit];
    last = kValues[digit];
  }
  return value;
}

/// The number of decimal digits, small letters, or small Roman digits; 0 for anything else.
int ValueOf(std::u16string_view text, char style) {
  if (style == '1') return Positional(text, u"0123456789", 0, 9);
  if (style == 'a' || style == 'A') return Positional(text, u"abcdefghijklmnopqrstuvwxyz", 1, 4);
  return OfRoman(text);
}

}  // namespace

std::u16string ListNumber(int number, char style) {
  const bool roman = (style == 'i' || style == 'I') && number < 4000;
  const bool letters = style == 'a' || style == 'A';
  const bool decimal = number < 1 || (!roman && !letters);
  const std::u16string text = decimal ? FromUtf8(std::to_string(number))
                              : roman ? RomanNumber(number)
                                      : Letters(number);
  const bool capital = style == 'A' || style == 'I';
  return (capital ? Upper(text) : text) + u'.';
}

std::optional<ReadNumber> ReadListNumber(std::u16string_view text, char style) {
  while (!text.empty() && (text.back() == u'\t' || text.back() == u' ')) text.remove_suffix(1);
  if (!text.ends_with(u'.')) return std::nullopt;
  text.remove_suffix(1);
  const std::u16string lower = Lower(text);
  const bool roman = lower == u"i" || lower.size() > 1;
  for (const char one : {style, roman ? 'i' : 'a', roman ? 'I' : 'A', '1', 'a', 'A', 'i', 'I'}) {
    const int number = ValueOf(one == 'A' || one == 'I' ? lower : std::u16string(text), one);
    if (number > 0 && ListNumber(number, one) == std::u16string(text) + u'.')
      return ReadNumber{number, one};
  }
  return std::nullopt;
}

}  // namespace lumenote
