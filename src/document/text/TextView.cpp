#include "document/text/TextView.h"

#include <algorithm>

namespace lumenote {
namespace {

bool Copy(std::string_view bytes, char* to) {
  std::copy(bytes.begin(), bytes.end(), to);
  return true;
}
bool Copy(std::u16string_view units, char* to) {
  for (const char16_t unit : units) {
    const unsigned char byte = ByteOf1252(unit);
    if (byte == 0) return false;
    *to++ = static_cast<char>(byte);
  }
  return true;
}
void Copy(std::string_view bytes, char16_t* to) {
  std::transform(bytes.begin(), bytes.end(), to, UnitOf1252);
}
void Copy(std::u16string_view units, char16_t* to) { std::copy(units.begin(), units.end(), to); }

void Append(std::string_view bytes, std::u16string& to) {
  // Goes through a small buffer: appending needs the units converted first.
  constexpr std::size_t kPiece = 512;
  char16_t units[kPiece];
  while (!bytes.empty()) {
    const std::string_view piece = bytes.substr(0, kPiece);
    Copy(piece, units);
    to.append(units, piece.size());
    bytes.remove_prefix(piece.size());
  }
}
void Append(std::u16string_view units, std::u16string& to) { to += units; }

}  // namespace

bool TextView::CopyTo(char* to) const {
  return Visit([=](auto text) { return Copy(text, to); });
}

void TextView::CopyTo(char16_t* to) const {
  Visit([=](auto text) { Copy(text, to); });
}

void TextView::AppendTo(std::u16string& text) const {
  Visit([&](auto own) { Append(own, text); });
}

std::u16string TextView::String() const {
  std::u16string text;
  AppendTo(text);
  return text;
}

}  // namespace lumenote
