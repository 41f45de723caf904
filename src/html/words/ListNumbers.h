// The numbers of list items as text.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// "3.", "c.", "III.": in the style "1aAiI"; a number that has none there is decimal.
std::u16string ListNumber(int number, char style);

struct ReadNumber {
  int number = 0;
  char style = '1';
};
/// The number that such a text shows, preferably in `style`; "i." and several letters are Roman if
/// they can be. Empty for a text that shows none.
std::optional<ReadNumber> ReadListNumber(std::u16string_view text, char style);

}  // namespace lumenote
