// Decoding by table, and code page 1252 backwards.
#include "rtf/CodePage.h"

#include <array>

#include "base/Strings.h"
#include "rtf/CodePageTables.h"
#include "rtf/DoubleBytePage.h"

namespace lumenote {
namespace {

constexpr std::array<char16_t, 128> kSymbols = [] {
  std::array<char16_t, 128> units{};
  for (int i = 0; i < 128; ++i) units[i] = static_cast<char16_t>(0xF080 + i);
  return units;
}();

const char16_t* UpperHalfOrWindows(int page) {
  if (page == kPageOfSymbols) return kSymbols.data();
  const char16_t* upper = UpperHalf(page);
  return upper ? upper : UpperHalf(kPageOfWindows);
}

}  // namespace

CodePage::CodePage(int number)
    : upper_(UpperHalfOrWindows(number)),
      number_(number),
      multiByte_(number == kPageUtf8 || DoubleBytePage::Is(number)) {}

void DecodeCodePage(int page, std::string_view bytes, std::u16string& out) {
  if (page == kPageUtf8) {
    out += FromUtf8(bytes);
    return;
  }
  if (const DoubleBytePage* pairs = DoubleBytePage::Find(page)) return pairs->Decode(bytes, out);
  const CodePage decode(page);
  out.reserve(out.size() + bytes.size());
  for (const char byte : bytes) out.push_back(decode[static_cast<unsigned char>(byte)]);
}

std::u16string Decode1252(std::string_view bytes) {
  std::u16string text;
  DecodeCodePage(kPageOfWindows, bytes, text);
  return text;
}

int ByteIn1252(char16_t unit) {
  if (unit < 0x80 || (unit >= 0xA0 && unit < 0x100)) return unit;
  constexpr std::size_t kUnits = 0x2123;  // the last one is the trade mark sign
  static const auto bytes = [] {
    std::array<unsigned char, kUnits> middle{};
    for (int byte = 0x80; byte < 0xA0; ++byte)
      middle[UpperHalf(kPageOfWindows)[byte - 0x80]] = static_cast<unsigned char>(byte);
    return middle;
  }();
  return unit < kUnits && bytes[unit] != 0 ? bytes[unit] : -1;
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
  for (const char16_t unit : text) {
    if (ByteIn1252(unit) < 0) return false;
  }
  return true;
}

int CodePageOfCharset(int charset) {
  struct Pair {
    int charset, page;
  };
  static constexpr Pair kPairs[] = {
      {0, 1252},   {2, 42},     {77, 10000}, {78, 10001}, {79, 10003}, {80, 10008},
      {81, 10002}, {83, 10005}, {84, 10004}, {85, 10006}, {86, 10081}, {87, 10021},
      {88, 10029}, {89, 10007}, {128, 932},  {129, 949},  {130, 1361}, {134, 936},
      {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
      {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
  };
  for (const Pair& pair : kPairs) {
    if (pair.charset == charset) return pair.page;
  }
  return 0;
}

}  // namespace lumenote
