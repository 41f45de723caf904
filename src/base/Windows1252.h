// Code page 1252: bytes to UTF-16 and back.
#pragma once
#include <array>
#include <string>
#include <string_view>

namespace lumenote {

/// The unit of each byte; the five undefined bytes stand for the control of the same number.
extern const std::array<char16_t, 256> kUnitsOf1252;
/// The byte of each unit up to the last one that has one; 0 for NUL and those that have none.
extern const std::array<unsigned char, 0x2123> kBytesOf1252;

inline char16_t UnitOf1252(char byte) { return kUnitsOf1252[static_cast<unsigned char>(byte)]; }
/// The byte of one unit; 0 for NUL and units that have none.
inline unsigned char ByteOf1252(char16_t unit) {
  return unit < kBytesOf1252.size() ? kBytesOf1252[unit] : 0;
}
/// The byte of one unit, or -1 when it has none.
inline int ByteIn1252(char16_t unit) {
  const int byte = ByteOf1252(unit);
  return byte != 0 || unit == 0 ? byte : -1;
}

std::u16string Decode1252(std::string_view bytes);
/// A character outside the code page becomes "?", a surrogate pair one "?".
std::string Encode1252(std::u16string_view text);
/// Whether every character of the text has a byte in code page 1252.
bool Fits1252(std::u16string_view text);

}  // namespace lumenote
