// Roman numbers.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// In small letters; empty for numbers below 1.
inline std::u16string RomanNumber(int number) {
  struct Digit {
    int value;
    std::u16string_view text;
  };
  constexpr Digit kDigits[] = {{1000, u"m"}, {900, u"cm"}, {500, u"d"}, {400, u"cd"}, {100, u"c"},
                               {90, u"xc"},  {50, u"l"},   {40, u"xl"}, {10, u"x"},   {9, u"ix"},
                               {5, u"v"},    {4, u"iv"},   {1, u"i"}};
  std::u16string text;
  for (const Digit& digit : kDigits)
    for (; number >= digit.value; number -= digit.value) text += digit.text;
  return text;
}

}  // namespace lumenote
