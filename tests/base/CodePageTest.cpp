#include <gtest/gtest.h>

#include "base/Rows.h"
#include "base/codepages/CodePage.h"
#include "base/codepages/CodePageTables.h"

namespace lumenote {
namespace {

TEST(CodePage, DecodesTheOthers) {
  for (const auto& [page, bytes, expected] : Rows16<3>(R"(
437 | 82 E1 | éß ¦ 850 | 9B | ø ¦ 866 | 8F E0 | Пр ¦ 874 | A1 E0 | กเ ¦ 1250 | E8 F8 | čř
1251 | CF F0 | Пр ¦ 1253 | C1 E1 | Αα ¦ 1254 | FD FE | ış ¦ 1255 | E0 | א ¦ 1256 | C7 | ا
1257 | E0 | ą ¦ 1258 | F0 | đ ¦ 10000 | 8E D5 | é’ ¦ 65001 | C3 A9 | é ¦ 0 | 80 | € ¦ 99999 | E9 92 | é’
936 | 80 D2 BB 81 40 FE 4F | €一丂﨩 ¦ 949 | B0 A1 81 41 CA A1 | 가갂伽 ¦ 950 | A4 40 C9 40 F9 D5 | 一乂龘
950 | A4 20 FF 78 81 | � �x� ¦ 932 | 83 6F B1 FD | バｱ� ¦ 1361 | 88 61 D9 31 5C | 가　\ ¦ 28605 | A4 BD | €œ ¦ 28592 | A3 F8 | Łř ¦ 20866 | F0 | П ¦ 21866 | A6 AE | іў
51932 | A5 D0 8E B1 61 8F B0 A1 A4 | バｱa�� ¦ 51932 | 8F B0 A1 F4 A6 A1 7E | �熙�~
)")) {
    std::string source;
    for (const std::string& byte : Split(ToUtf8(bytes), " "))
      source += static_cast<char>(std::stoi(byte, nullptr, 16));
    std::u16string text;
    DecodeCodePage(std::stoi(ToUtf8(page)), source, text);
    EXPECT_EQ(text, expected) << ToUtf8(page);
  }
  std::u16string text;
  DecodeCodePage(932, "\xA0\xF0\x40", text);
  DecodeCodePage(42, "A \xB7", text);
  DecodeCodePage(936, "\xAF\xFE\xF8\xA1\xA7\xA0", text);
  DecodeCodePage(949, "\xC9\xFE\xFE\xA1", text);
  DecodeCodePage(950, "\xFA\x40\xFE\xFE\x8E\x40\x8D\xFE\xC6\xA1\xC8\xFE", text);
  EXPECT_EQ(text,
            u"\u00A0\uE000\uF041 \uF0B7\uE233\uE234\uE765\uE05D\uE05E\uE000\uE310\uE311"
            u"\uF6B0\uF6B1\uF848");
}

TEST(CodePage, EncodesWhatItDecodes) {
  for (const int page : {437, 932, 936, 949, 950, 1251, 1252, 1361, kPageUtf8}) {
    int count = 0;
    for (int unit = 0x80; unit < 0x10000; ++unit) {
      const std::string bytes = EncodeCodePage(page, static_cast<char16_t>(unit));
      if (bytes.empty()) continue;
      std::u16string again;
      DecodeCodePage(page, bytes, again);
      EXPECT_EQ(again, std::u16string(1, static_cast<char16_t>(unit))) << page;
      ++count;
    }
    EXPECT_GE(count, 128) << page;
  }
}

TEST(CodePage, EveryTableIsWhole) {
  int tables = 0;
  for (int page = 0; page < 30000; ++page)
    if (const char16_t* upper = page == kPageOfWindows ? nullptr : UpperHalf(page))
      tables += std::u16string_view(upper).size() == 128u;
  EXPECT_EQ(tables, 46);
}

}  // namespace
}  // namespace lumenote
