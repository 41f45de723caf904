// Checked number conversions and numbers as text.
#include "base/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "base/RuntimeError.h"

namespace lumenote {
namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

template <class Integer>
Integer RoundedTo(double value) {
  const double rounded = std::nearbyint(value);  // halves to even: the default rounding mode
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max())) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<Integer>(rounded);
}

std::u16string_view Trimmed(std::u16string_view text) {
  constexpr std::u16string_view kBlanks = u" \t";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Non-ASCII characters become '?', which no number contains.
std::string Ascii(std::u16string_view text) {
  std::string ascii;
  for (const char16_t c : text) ascii += c < 0x80 ? static_cast<char>(c) : '?';
  return ascii;
}

/// Rewrites the text in the syntax that `ParseDecimal` takes.
std::string Numeral(std::u16string_view text) {
  std::string numeral = Ascii(text);
  for (char& c : numeral) {
    if (c == ',') c = '.';
    if (c == 'd' || c == 'D') c = 'e';
  }
  return numeral;
}

/// Approximate power of ten of the first nonzero digit. Only its sign matters: it tells a numeral
/// too large for a double from one too small.
std::int64_t Magnitude(std::string_view numeral) {
  const std::size_t exponentMark = std::min(numeral.find_first_of("eE"), numeral.size());
  const std::string_view mantissa = numeral.substr(0, exponentMark);
  const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
  const auto lead =
      static_cast<std::int64_t>(std::min(mantissa.find_first_of("123456789"), mantissa.size()));
  std::string_view exponent = numeral.substr(std::min(exponentMark + 1, numeral.size()));
  if (exponent.starts_with('+')) exponent.remove_prefix(1);
  std::int32_t power = 0;
  const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
  if (read.ec == std::errc::result_out_of_range) {
    return exponent[0] == '-' ? std::numeric_limits<std::int32_t>::min()
                              : std::numeric_limits<std::int32_t>::max();
  }
  return point - lead + power;
}

/// The 32 bits written after "&H".
double ParseHexadecimal(std::u16string_view text) {
  const std::string ascii = Ascii(text);
  std::string_view digits = ascii;
  if (digits.ends_with('&')) digits.remove_suffix(1);
  std::uint32_t bits = 0;
  const char* end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, bits, 16);
  if (read.ec == std::errc::invalid_argument || read.ptr != end) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  if (read.ec == std::errc::result_out_of_range) throw RuntimeError(ErrorNumber::Overflow);
  return static_cast<std::int32_t>(bits);
}

}  // namespace

std::int16_t ToInt16(std::int64_t value) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max()) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<std::int16_t>(value);
}

std::int16_t ToInt16(double value) { return RoundedTo<std::int16_t>(value); }

std::int32_t ToInt32(double value) { return RoundedTo<std::int32_t>(value); }

std::int32_t Sum32(std::int32_t one, std::int32_t other) {
  return ToInt32(static_cast<double>(one) + other);
}

double ParseDecimal(std::string_view numeral) {
  const std::size_t first = numeral.starts_with('-') ? 1 : 0;
  // from_chars would accept "inf" and "nan".
  if (numeral.size() == first || (!IsDigit(numeral[first]) && numeral[first] != '.')) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  double value = 0;
  const char* end = numeral.data() + numeral.size();
  const auto read = std::from_chars(numeral.data(), end, value);
  if (read.ec == std::errc::invalid_argument || read.ptr != end) {
    throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  if (read.ec != std::errc::result_out_of_range) return value;
  if (Magnitude(numeral.substr(first)) > 0) throw RuntimeError(ErrorNumber::Overflow);
  return 0;
}

double ParseNumber(std::u16string_view text) {
  text = Trimmed(text);
  if (text.starts_with(u"&H") || text.starts_with(u"&h")) return ParseHexadecimal(text.substr(2));
  const std::string whole = Numeral(text);
  std::string_view numeral = whole;
  if (numeral.starts_with('+')) {
    numeral.remove_prefix(1);
    if (numeral.starts_with('-')) throw RuntimeError(ErrorNumber::TypeMismatch);
  }
  return ParseDecimal(numeral);
}

std::int32_t ParseInt32(std::u16string_view text) { return ToInt32(ParseNumber(text)); }

float ParseSingle(std::u16string_view text) {
  const double value = ParseNumber(text);
  if (std::abs(value) > std::numeric_limits<float>::max()) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<float>(value);
}

std::u16string NumberText(float value) {
  if (value == 0) return u"0";  // never "-0"
  constexpr int kDigits = 7;
  char buffer[32];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, kDigits);
  std::u16string text(buffer, end.ptr);
  std::replace(text.begin(), text.end(), u'.', u',');
  std::replace(text.begin(), text.end(), u'e', u'E');
  return text;
}

std::u16string NumberText(std::int64_t value) {
  char buffer[24];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::u16string(buffer, end.ptr);
}

}  // namespace lumenote
