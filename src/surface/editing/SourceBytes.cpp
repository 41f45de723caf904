#include "surface/editing/SourceBytes.h"

#include <algorithm>
#include <cstdint>

#include "base/Windows1252.h"

namespace lumenote {

namespace {

bool AreBytes(std::u16string_view units) {
  return std::ranges::all_of(units, [](char16_t unit) { return unit <= 0xFF; });
}

std::string Narrow(std::u16string_view units) {
  std::string bytes(units.size(), '\0');
  std::ranges::transform(units, bytes.begin(),
                         [](char16_t unit) { return static_cast<char>(unit); });
  return bytes;
}

/// RTF source as bytes; `byteOf` returns the byte of a unit, or -1. The braces after an escape end
/// it, whatever the current \uc count: what follows cannot be taken for its fallback.
template <class ByteOf>
std::string SourceBytes(std::u16string_view source, ByteOf byteOf) {
  std::string bytes;
  bytes.reserve(source.size());
  bool escaping = false;
  for (const char16_t unit : source) {
    const int byte = byteOf(unit);
    if (byte >= 0) {
      bytes += static_cast<char>(byte);
    } else {
      if (!escaping) bytes += '\\';
      bytes += "u" + std::to_string(static_cast<std::int16_t>(unit)) + "{}";
    }
    escaping = unit == u'\\' && !escaping;
  }
  return bytes;
}

}  // namespace

std::u16string WidenSource(std::string_view bytes) {
  std::u16string units(bytes.size(), u'\0');
  std::ranges::transform(bytes, units.begin(),
                         [](char c) { return static_cast<unsigned char>(c); });
  return units;
}

std::string NarrowSource(std::u16string_view units) {
  if (AreBytes(units)) return Narrow(units);
  return SourceBytes(units, [](char16_t unit) { return unit <= 0xFF ? unit : ByteIn1252(unit); });
}

std::string EncodeSource(std::u16string_view source) { return SourceBytes(source, ByteIn1252); }

}  // namespace lumenote
