#include "surface/TextBytes.h"

#include <algorithm>

#include "base/Strings.h"
#include "base/Windows1252.h"

namespace lumenote {

namespace {

/// `low`: index of the low byte in each pair. A last byte without a partner is dropped.
std::u16string DecodeUtf16(std::string_view bytes, std::size_t low) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto least = static_cast<unsigned char>(bytes[i + low]);
    const auto most = static_cast<unsigned char>(bytes[i + 1 - low]);
    text += static_cast<char16_t>(most << 8 | least);
  }
  return text;
}

}  // namespace

std::u16string DecodePlainText(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) return FromUtf8(bytes.substr(3));
  if (bytes.starts_with("\xFF\xFE")) return DecodeUtf16(bytes.substr(2), 0);
  if (bytes.starts_with("\xFE\xFF")) return DecodeUtf16(bytes.substr(2), 1);
  return Decode1252(bytes);
}

std::u16string UnitsOfBytes(std::string_view bytes) {
  std::u16string units(bytes.size(), u'\0');
  std::ranges::transform(bytes, units.begin(),
                         [](char c) { return static_cast<unsigned char>(c); });
  return units;
}

std::string BytesOfUnits(std::u16string_view units) {
  std::string bytes(units.size(), '\0');
  std::ranges::transform(units, bytes.begin(), [](const char16_t& unit) {
    return unit <= 0xFF ? static_cast<char>(unit) : Encode1252({&unit, 1}).front();
  });
  return bytes;
}

}  // namespace lumenote
