// Table-driven decoding.
#include "base/codepages/CodePage.h"

#include <array>

#include "base/Strings.h"
#include "base/codepages/CodePageTables.h"
#include "base/codepages/DoubleBytePage.h"
#include "base/codepages/EucJp.h"

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
      multiByte_(number == kPageUtf8 || number == kPageEucJp || DoubleBytePage::Is(number)) {}

void DecodeCodePage(int page, std::string_view bytes, std::u16string& out) {
  if (page == kPageUtf8) {
    out += FromUtf8(bytes);
    return;
  }
  if (page == kPageEucJp) return DecodeCodePage(932, Page932OfEucJp(bytes), out);
  if (const DoubleBytePage* pairs = DoubleBytePage::Find(page)) return pairs->Decode(bytes, out);
  const CodePage decode(page);
  out.reserve(out.size() + bytes.size());
  for (const char byte : bytes) out.push_back(decode[static_cast<unsigned char>(byte)]);
}

std::string EncodeCodePage(int page, char16_t unit) {
  constexpr char16_t kUnknown = u'\uFFFD';
  if (unit == kUnknown || IsSurrogate(unit) || page == kPageEucJp) return {};
  if (page == kPageUtf8) return ToUtf8(std::u16string_view(&unit, 1));
  if (const DoubleBytePage* pairs = DoubleBytePage::Find(page)) return pairs->Encode(unit);
  const std::size_t at = std::u16string_view(UpperHalfOrWindows(page), 0x80).find(unit);
  if (at == std::u16string_view::npos) return {};
  return {static_cast<char>(0x80 + at)};
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
