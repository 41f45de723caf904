#include "format/Measures.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "base/Twips.h"

namespace lumenote {

namespace {

constexpr double kHundredthsPerInch = 2540;
constexpr std::int32_t kMaxSteps = 251;

double HundredthsOfMillimetre(double twips) {
  return std::floor(twips / kTwipsPerInch * kHundredthsPerInch);
}

}  // namespace

float CTwTosiMm2d(double twips) { return static_cast<float>(HundredthsOfMillimetre(twips) / 100); }

std::u16string MillimetresText(double twips) { return NumberText(CTwTosiMm2d(twips)); }

std::u16string WholeMillimetresText(double twips) {
  return NumberText(std::floor(CTwTosiMm2d(twips)));
}

std::int32_t CorrValIndent(std::int32_t value, std::int32_t step) {
  const std::int32_t half = ToInt32(step / 2.0);
  if (value >= -half && value < half) return 0;
  for (std::int32_t n = 1; n <= kMaxSteps; ++n) {
    const std::int32_t multiple = n * step;
    if (value >= multiple - half && value < multiple + half) return multiple;
  }
  return value;
}

std::u16string LineSpacingText(std::int32_t code) {
  return NumberText(static_cast<float>(code) / 20).substr(0, 4);
}

std::optional<std::int32_t> LineSpacingCode(std::u16string_view text) {
  if (!IsNumericText(text, false) || text == u",") return {};
  const double code = std::floor(ParseNumber(text) * 20);
  return code > 99 ? 1 : static_cast<std::int32_t>(code);
}

bool IsNumericText(std::u16string_view text, bool minusAllowed) {
  const auto allowed = [&](char16_t c) {
    return (c >= u'0' && c <= u'9') || c == u',' || (minusAllowed && c == u'-');
  };
  return !text.empty() && std::all_of(text.begin(), text.end(), allowed) &&
         std::count(text.begin(), text.end(), u',') <= 1;
}

std::u16string NormalisedNumber(std::u16string_view text) {
  std::u16string number(TrimSpaces(text));
  std::replace(number.begin(), number.end(), u'.', u',');
  if (number.empty() || IsNumericText(number, false)) return number;
  return u"0";
}

}  // namespace lumenote
