#include "html/source/CharacterReferences.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

#include "base/Windows1252.h"
#include "html/source/Ascii.h"
#include "html/source/NamedCharacters.h"

namespace lumenote {
namespace {

constexpr std::size_t kLongestName = 32;  // more than any has
constexpr std::uint32_t kBeyond = 0x110000;
constexpr char16_t kReplacement = u'\uFFFD';

struct Named {
  std::string_view name, units;
  bool legacy = false;  // needs no semicolon
};

std::vector<Named> Unpacked() {
  std::vector<Named> all;
  std::string_view rest = kNamedCharacters;
  while (!rest.empty()) {
    const std::size_t sign = rest.find_first_of("=~");
    const std::size_t end = rest.find(' ');
    all.push_back({rest.substr(0, sign), rest.substr(sign + 1, end - sign - 1), rest[sign] == '~'});
    rest.remove_prefix(end + 1);
  }
  return all;
}

const Named* Find(std::string_view name) {
  static const std::vector<Named> kAll = Unpacked();
  const auto found = std::ranges::lower_bound(kAll, name, {}, &Named::name);
  return found != kAll.end() && found->name == name ? &*found : nullptr;
}

void AppendUnits(std::string_view hex, std::u16string& out) {
  while (!hex.empty()) {
    const std::size_t end = std::min(hex.find('+'), hex.size());
    std::uint16_t unit = 0;
    std::from_chars(hex.data(), hex.data() + end, unit, 16);
    out += static_cast<char16_t>(unit);
    hex.remove_prefix(std::min(end + 1, hex.size()));
  }
}

bool IsNameCharacter(char16_t c) { return IsAsciiLetter(c) || IsAsciiDigit(c); }

/// The letters and digits at the start of `text`.
std::string NameAt(std::u16string_view text) {
  std::string name;
  while (name.size() < std::min(text.size(), kLongestName) && IsNameCharacter(text[name.size()]))
    name += static_cast<char>(text[name.size()]);
  return name;
}

/// The length of the name at the start of `text`, with its semicolon; 0 if there is none.
std::size_t TakeNamed(std::u16string_view text, bool inAttribute, std::u16string& out) {
  std::string name = NameAt(text);
  const Named* found = text.substr(name.size()).starts_with(u';') ? Find(name) : nullptr;
  if (found) {
    AppendUnits(found->units, out);
    return name.size() + 1;
  }
  for (; name.size() > 1; name.pop_back()) {
    found = Find(name);
    if (!found || !found->legacy) continue;
    const char16_t next = name.size() < text.size() ? text[name.size()] : u'\0';
    if (inAttribute && (next == u'=' || IsNameCharacter(next))) return 0;
    AppendUnits(found->units, out);
    return name.size();
  }
  return 0;
}

void AppendNumbered(std::uint32_t number, std::u16string& out) {
  if (number >= 0x80 && number < 0xA0) number = UnitOf1252(static_cast<char>(number));
  if (number >= 0x10000 && number < kBeyond) {
    out += static_cast<char16_t>(0xD7C0 + (number >> 10));
    out += static_cast<char16_t>(0xDC00 + (number & 0x3FF));
  } else {
    const bool none = number == 0 || number >= kBeyond || (number & 0xFFFFF800) == 0xD800;
    out += none ? kReplacement : static_cast<char16_t>(number);
  }
}

/// The same for the number after "#".
std::size_t TakeNumbered(std::u16string_view text, std::u16string& out) {
  const bool hexadecimal = StartsWithName(text, u"x");
  const std::uint32_t base = hexadecimal ? 16 : 10;
  const std::size_t first = hexadecimal ? 1 : 0;
  std::size_t end = first;
  std::uint32_t number = 0;
  for (; end < text.size(); ++end) {
    const int digit = HexDigit(text[end]);
    if (digit < 0 || static_cast<std::uint32_t>(digit) >= base) break;
    number = std::min(number * base + static_cast<std::uint32_t>(digit), kBeyond);
  }
  if (end == first) return 0;
  AppendNumbered(number, out);
  return end + (text.substr(end).starts_with(u';') ? 1 : 0);
}

}  // namespace

std::size_t TakeReference(std::u16string_view source, bool inAttribute, std::u16string& out) {
  const bool numbered = source.substr(1).starts_with(u'#');
  const std::size_t before = numbered ? 2 : 1;
  const std::u16string_view rest = source.substr(before);
  const std::size_t length = numbered ? TakeNumbered(rest, out) : TakeNamed(rest, inAttribute, out);
  if (length > 0) return before + length;
  out += u'&';
  return 1;
}

}  // namespace lumenote
