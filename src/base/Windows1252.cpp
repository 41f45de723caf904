#include "base/Windows1252.h"

#include <algorithm>

#include "base/Strings.h"

namespace lumenote {

constexpr std::array<char16_t, 256> kUnitsOf1252 = [] {
  constexpr std::u16string_view kMiddle =
      u"€\x81‚ƒ„…†‡\u02C6‰Š‹Œ\x8DŽ\x8F\x90‘’“”•–—\u02DC™š›œ\x9DžŸ";
  std::array<char16_t, 256> units{};
  for (char16_t byte = 0; byte < units.size(); ++byte) units[byte] = byte;
  std::copy(kMiddle.begin(), kMiddle.end(), units.begin() + 0x80);
  return units;
}();

constexpr std::array<unsigned char, 0x2123> kBytesOf1252 = [] {
  std::array<unsigned char, 0x2123> bytes{};
  for (std::size_t byte = 0; byte < kUnitsOf1252.size(); ++byte)
    bytes[kUnitsOf1252[byte]] = static_cast<unsigned char>(byte);
  return bytes;
}();

std::u16string Decode1252(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text.push_back(UnitOf1252(byte));
  return text;
}

std::string Encode1252(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int byte = ByteIn1252(text[i]);
    bytes.push_back(byte < 0 ? '?' : static_cast<char>(byte));
    const bool pair =
        IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    if (pair) ++i;
  }
  return bytes;
}

bool Fits1252(std::u16string_view text) {
  return std::ranges::none_of(text, [](char16_t unit) { return ByteIn1252(unit) < 0; });
}

}  // namespace lumenote
