#include "document/lists/ListLevel.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

#include "base/Characters.h"
#include "base/RomanNumber.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

using Form = ListLevel::Form;

constexpr int kMostRepeated = 30;           // of one letter or Roman digit; nobody reads more
constexpr std::size_t kLongestNumber = 48;  // on one level
constexpr std::size_t kLongestText = 96;    // of all levels; bounds the work on hostile sources

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
         (unit >= u'A' && unit <= u'Z') || unit == u'-';
}

/// How a level shows the number of its own or an upper level.
Form ShownForm(const ListLevel& own, Form form) {
  const bool arabic = own.legal && form != Form::None && form != Form::Bullet;
  return arabic ? Form::Arabic : form;
}

int RomanValue(std::string_view text) {
  constexpr std::string_view kDigits = "ivxlcdm";
  constexpr int kValues[] = {1, 5, 10, 50, 100, 500, 1000};
  int value = 0;
  int last = 0;
  for (const char digit : text) {
    const std::size_t index = kDigits.find(digit);
    if (index == kDigits.npos) return 0;
    value += kValues[index] - (last < kValues[index] ? 2 * last : 0);
    last = kValues[index];
  }
  return value;
}

/// The number that may look like that; another one, or 0, if none does.
int ValueIn(Form form, std::u16string_view text) {
  if (text.empty() || !std::ranges::all_of(text, IsOfNumber)) return 0;
  const std::string small = ToUtf8(Lower(text));
  int value = 0;
  if (std::from_chars(small.data(), small.data() + small.size(), value).ptr != small.data())
    return value;
  if (form == Form::UpperRoman || form == Form::LowerRoman) return RomanValue(small);
  return (static_cast<int>(small.size()) - 1) * 26 + small.front() - 'a' + 1;
}

/// Whether a unit of a level's text may appear as that.
bool Shows(const ListLevels& levels, int level, char16_t unit, std::u16string_view text) {
  if (!IsPlaceholder(unit)) return text.size() == 1 && text.front() == unit;
  if (unit > level) return text.empty();
  const Form form = ShownForm(levels[static_cast<std::size_t>(level)], levels[unit].form);
  return form != Form::Unknown && NumberIn(form, ValueIn(form, text)) == text;
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
  if (!own.readable) return std::nullopt;
  for (const char16_t unit : own.text) {
    if (!IsPlaceholder(unit)) {
      text += unit;
      continue;
    }
    const Form form = levels[unit].form;
    if (form == Form::Unknown) return std::nullopt;
    if (unit <= level) text += NumberIn(ShownForm(own, form), numbers[unit]);
  }
  return text;
}

bool LooksLikeNumber(std::u16string_view text, const ListLevels& levels, int level) {
  const ListLevel& own = levels[static_cast<std::size_t>(level)];
  if (!own.readable || text.size() > kLongestText) return false;
  if (std::ranges::count_if(own.text, IsPlaceholder) > kListLevels) return false;
  std::vector<bool> reached(text.size() + 1);  // where the level's text so far may end
  reached[0] = true;
  for (const char16_t unit : own.text) {
    std::vector<bool> next(reached.size());
    for (std::size_t at = 0; at < reached.size(); ++at) {
      if (!reached[at]) continue;
      const std::u16string_view rest = text.substr(at);
      for (std::size_t length = 0; length <= std::min(rest.size(), kLongestNumber); ++length)
        if (Shows(levels, level, unit, rest.substr(0, length))) next[at + length] = true;
    }
    reached = std::move(next);
  }
  return reached.back();
}

}  // namespace lumenote
