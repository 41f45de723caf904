// Numbers in the platform's classic widths, and as text with a decimal comma.
#pragma once
#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace lumenote {

/// Raises Overflow outside -32768..32767.
std::int16_t ToInt16(std::int64_t value);
/// Rounds halves to even, then checks as above.
std::int16_t ToInt16(double value);
/// Rounds halves to even; raises Overflow beyond 32 signed bits.
std::int32_t ToInt32(double value);
/// Raises Overflow beyond 32 signed bits.
std::int32_t Sum32(std::int32_t one, std::int32_t other);

/// The nearest number of a narrower type.
template <class Number>
constexpr Number Clipped(std::int64_t value) {
  using Limits = std::numeric_limits<Number>;
  return static_cast<Number>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// The double nearest to `numeral` (ASCII: minus, digits, a point, an exponent after e); zero on
/// underflow. Raises TypeMismatch or Overflow.
double ParseDecimal(std::string_view numeral);

/// Parses a number: an optional sign, a decimal comma or point, an optional exponent (after e or
/// d), spaces and tabs allowed around it. "&H", up to eight hexadecimal digits and an optional
/// closing "&" give a 32-bit pattern. Raises Overflow for a number too large for a double, and
/// TypeMismatch for any other text, the empty one included.
double ParseNumber(std::u16string_view text);
/// `ParseNumber` rounded to a 32-bit integer.
std::int32_t ParseInt32(std::u16string_view text);
/// `ParseNumber` narrowed to single precision.
float ParseSingle(std::u16string_view text);

/// At most 7 significant digits without trailing zeros: decimal comma, no grouping, and an exponent
/// ("1E-05") below 0,0001 and from 10 000 000 up.
std::u16string NumberText(float value);
std::u16string NumberText(std::int64_t value);

}  // namespace lumenote
