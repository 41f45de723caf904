#include "document/lists/ListLevel.h"

#include <algorithm>

#include "base/Characters.h"
#include "base/RomanNumber.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

using Form = ListLevel::Form;

constexpr int kMostRepeated = 30;  // of one letter or Roman digit; nobody reads more

std::u16string Digits(int number) { return FromUtf8(std::to_string(number)); }

/// a to z, aa, bb, ..., as word processors do.
std::u16string Letters(int number) {
  const int repeated = (number - 1) / 26 + 1;
  return std::u16string(static_cast<std::size_t>(repeated),
                        static_cast<char16_t>(u'a' + (number - 1) % 26));
}

std::u16string Roman(int number) {
  return number < 1000 * kMostRepeated ? RomanNumber(number) : Digits(number);
}

std::u16string NumberIn(Form form, int number) {
  if (form == Form::None || form == Form::Bullet) return {};
  if (form == Form::TwoDigits && number >= 0 && number < 10) return u"0" + Digits(number);
  if (number < 1) return Digits(number);
  switch (form) {
    case Form::UpperRoman:
      return Upper(Roman(number));
    case Form::LowerRoman:
      return Roman(number);
    case Form::UpperLetter:
    case Form::LowerLetter:
      if (number > 26 * kMostRepeated) return Digits(number);
      return form == Form::UpperLetter ? Upper(Letters(number)) : Letters(number);
    default:
      return Digits(number);
  }
}

bool IsPlaceholder(char16_t unit) { return unit < kListLevels; }

bool IsOfNumber(char16_t unit) {
  return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'z') ||
         (unit >= u'A' && unit <= u'Z');
}

}  // namespace

Form ListFormOf(int number) {
  constexpr Form kForms[] = {Form::Arabic, Form::UpperRoman, Form::LowerRoman, Form::UpperLetter,
                             Form::LowerLetter};
  constexpr int kTwoDigits = 22;
  constexpr int kBullet = 23;
  constexpr int kNone = 255;
  if (number >= 0 && number < static_cast<int>(std::size(kForms))) return kForms[number];
  if (number == kTwoDigits) return Form::TwoDigits;
  if (number == kBullet) return Form::Bullet;
  return number == kNone ? Form::None : Form::Unknown;
}

std::optional<std::u16string> ListNumberText(const ListLevels& levels, int level,
                                             const ListNumbers& numbers) {
  std::u16string text;
  const ListLevel& own = levels[static_cast<std::size_t>(level)];
  for (const char16_t unit : own.text) {
    if (!IsPlaceholder(unit)) {
      text += unit;
      continue;
    }
    const Form form = levels[unit].form;
    if (form == Form::Unknown) return std::nullopt;
    const bool arabic = own.legal && form != Form::None && form != Form::Bullet;
    if (unit <= level) text += NumberIn(arabic ? Form::Arabic : form, numbers[unit]);
  }
  return text;
}

bool LooksLikeNumber(std::u16string_view text, std::u16string_view look) {
  while (!look.empty()) {
    if (text.empty()) return false;
    const bool number = IsPlaceholder(look.front());
    if (number ? !IsOfNumber(text.front()) : text.front() != look.front()) return false;
    const auto end = number ? std::ranges::find_if_not(text, IsOfNumber) : text.begin() + 1;
    text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    const auto rest = number ? std::ranges::find_if_not(look, IsPlaceholder) : look.begin() + 1;
    look.remove_prefix(static_cast<std::size_t>(rest - look.begin()));
  }
  return text.empty();
}

}  // namespace lumenote
