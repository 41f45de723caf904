// Code page 1252: bytes to UTF-16 and back.
#pragma once
#include <array>
#include <string>
#include <string_view>

namespace lumenote {

/// The unit of each byte; the five undefined bytes map to the C1 control of the same number.
extern const std::array<char16_t, 256> kUnitsOf1252;
/// The byte of each unit, as far as the last unit that has one; 0 for NUL and for units without
/// one.
extern const std::array<unsigned char, 0x2123> kBytesOf1252;

inline char16_t UnitOf1252(char byte) { return kUnitsOf1252[static_cast<unsigned char>(byte)]; }
/// The byte of a unit; 0 for NUL and for units without one.
inline unsigned char ByteOf1252(char16_t unit) {
  return unit < kBytesOf1252.size() ? kBytesOf1252[unit] : 0;
}
/// The byte of a unit, or -1.
inline int ByteIn1252(char16_t unit) {
  const int byte = ByteOf1252(unit);
  return byte != 0 || unit == 0 ? byte : -1;
}

std::u16string Decode1252(std::string_view bytes);
/// A character outside the code page becomes "?"; so does a surrogate pair, as one.
std::string Encode1252(std::u16string_view text);
/// Whether page 1252 has every character of the text.
bool Fits1252(std::u16string_view text);

}  // namespace lumenote
