// Numbers of the platform's classic widths, and their text forms (decimal comma).
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

namespace lumenote {

/// Checked conversion to 16 signed bits; raises Overflow outside -32768..32767.
std::int16_t ToInt16(std::int64_t value);
/// The same, after rounding halves to the even neighbour.
std::int16_t ToInt16(double value);
/// Checked conversion to 32 signed bits, halves rounded to even; raises Overflow.
std::int32_t ToInt32(double value);
/// The sum in 32 signed bits; raises Overflow.
std::int32_t Sum32(std::int32_t one, std::int32_t other);

/// The double nearest to `numeral` (ASCII: a minus, digits, a point, an exponent after e); zero
/// when it is too small to be told from zero. Raises TypeMismatch or Overflow.
double ParseDecimal(std::string_view numeral);

/// The number that a text holds, blanks and tabs around it allowed, with an optional sign, a
/// decimal comma or point and an optional exponent (after e or d). "&H" and up to eight hexadecimal
/// digits, with or without a closing "&", are the 32-bit pattern of a number. Raises TypeMismatch
/// for anything else, the empty text included, and Overflow for a number no double holds.
double ParseNumber(std::u16string_view text);
/// `ParseNumber`, rounded to a 32-bit integer.
std::int32_t ParseInt32(std::u16string_view text);
/// `ParseNumber`, narrowed to single precision.
float ParseSingle(std::u16string_view text);

/// The number with at most 7 significant digits and no closing zeros: decimal comma, no grouping,
/// an exponent ("1E-05") below 0,0001 and from 10 000 000 up.
std::u16string NumberText(float value);
std::u16string NumberText(std::int64_t value);

}  // namespace lumenote
