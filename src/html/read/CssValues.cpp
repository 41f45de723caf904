#include "html/read/CssValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

#include "base/Twips.h"
#include "html/read/CssColours.h"
#include "html/source/Ascii.h"

namespace lumenote {
namespace {

struct Unit {
  std::u16string_view name;
  double value;
  CssLength::Unit unit = CssLength::Unit::Twips;
};
constexpr Unit kUnits[] = {
    {u"pt", kTwipsPerPoint},
    {u"px", kTwipsPerPixel},
    {u"cm", kTwipsPerInch / 2.54},
    {u"mm", kTwipsPerInch / 25.4},
    {u"in", kTwipsPerInch},
    {u"pc", 12 * kTwipsPerPoint},
    {u"rem", 240},
    {u"em", 1, CssLength::Unit::Size},
    {u"ex", 0.5, CssLength::Unit::Size},
    {u"ch", 0.5, CssLength::Unit::Size},
    {u"%", 0.01, CssLength::Unit::Size},
};

constexpr Unit kSizes[] = {
    {u"xx-small", 135},
    {u"x-small", 150},
    {u"small", 195},
    {u"medium", 240},
    {u"large", 270},
    {u"x-large", 360},
    {u"xx-large", 480},
    {u"xxx-large", 720},
    {u"larger", 1.2, CssLength::Unit::Size},
    {u"smaller", 1 / 1.2, CssLength::Unit::Size},
};

Colour FromRgb(std::uint32_t rgb) { return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16; }

/// Three, four, six or eight hexadecimal digits; the fourth part, the opacity, counts as full.
std::optional<Colour> FromDigits(std::u16string_view digits) {
  const bool isShort = digits.size() == 3 || digits.size() == 4;
  if (!isShort && digits.size() != 6 && digits.size() != 8) return std::nullopt;
  if (std::ranges::any_of(digits, [](char16_t c) { return HexDigit(c) < 0; })) return std::nullopt;
  std::uint32_t rgb = 0;
  for (std::size_t i = 0; i < (isShort ? 3u : 6u); ++i) {
    const auto digit = static_cast<std::uint32_t>(HexDigit(digits[i]));
    rgb = isShort ? rgb << 8 | digit * 0x11 : rgb << 4 | digit;
  }
  return FromRgb(rgb);
}

/// The parts of "rgb(...)" or "rgba(...)" behind the bracket: numbers or per cents.
std::optional<Colour> FromParts(std::u16string_view text) {
  std::array<double, 4> parts = {0, 0, 0, 1};
  std::size_t count = 0;
  for (; count < parts.size(); ++count) {
    const auto isBetween = [](char16_t c) { return IsHtmlSpace(c) || c == u',' || c == u'/'; };
    while (!text.empty() && isBetween(text.front())) text.remove_prefix(1);
    const std::optional<double> number = TakeNumber(text);
    if (!number) break;
    const bool perCent = text.starts_with(u'%');
    if (perCent) text.remove_prefix(1);
    parts[count] = perCent ? *number * 2.55 : *number;
  }
  if (count < 3) return std::nullopt;
  if (parts[3] == 0) return kAutoColour;
  std::uint32_t rgb = 0;
  for (std::size_t i = 0; i < 3; ++i)
    rgb = rgb << 8 | static_cast<std::uint32_t>(std::lround(std::clamp(parts[i], 0.0, 255.0)));
  return FromRgb(rgb);
}

}  // namespace

std::optional<double> TakeNumber(std::u16string_view& text) {
  constexpr std::size_t kLongestNumber = 32;
  std::string digits;
  for (const char16_t c : text.substr(0, kLongestNumber)) {
    if (!IsAsciiDigit(c) && c != u'.' && c != u'-' && c != u'+') break;
    digits += static_cast<char>(c);
  }
  const std::size_t sign = digits.starts_with('+') ? 1 : 0;
  double number = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data() + sign, end, number);
  if (read.ec != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(read.ptr - digits.data()));
  return number;
}

std::optional<CssLength> ReadLength(std::u16string_view text) {
  text = TrimHtml(text);
  const std::optional<double> number = TakeNumber(text);
  if (!number) return std::nullopt;
  if (text.empty() && *number == 0) return CssLength();
  const auto* const unit =
      std::ranges::find_if(kUnits, [=](const Unit& one) { return IsName(text, one.name); });
  if (unit == std::end(kUnits)) return std::nullopt;
  return CssLength{*number * unit->value, unit->unit};
}

std::optional<CssLength> ReadFontSize(std::u16string_view text) {
  text = TrimHtml(text);
  for (const Unit& size : kSizes)
    if (IsName(text, size.name)) return CssLength{size.value, size.unit};
  return ReadLength(text);
}

std::optional<Colour> ReadColour(std::u16string_view text) {
  text = TrimHtml(text);
  if (IsName(text, u"transparent") || IsName(text, u"windowtext")) return kAutoColour;
  if (text.starts_with(u'#')) return FromDigits(text.substr(1));
  const std::size_t bracket = text.find(u'(');
  if (StartsWithName(text, u"rgb") && bracket != text.npos)
    return FromParts(text.substr(bracket + 1));
  if (const auto named = ColourCalled(NameOf(text))) return FromRgb(*named);
  return text.size() == 6 ? FromDigits(text) : std::nullopt;
}

}  // namespace lumenote
