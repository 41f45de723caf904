#include <gtest/gtest.h>

#include "rtf/codepages/CodePage.h"
#include "rtf/codepages/CodePageTables.h"

namespace lumenote {
namespace {

std::u16string Decoded(int page, std::string_view bytes) {
  std::u16string text;
  DecodeCodePage(page, bytes, text);
  return text;
}

TEST(CodePage, DecodesTheOthers) {
  struct {
    int page;
    const char* bytes;
    const char16_t* text;
  } const cases[] = {{437, "\x82\xE1", u"éß"},
                     {850, "\x9B", u"ø"},
                     {866, "\x8F\xE0", u"Пр"},
                     {874, "\xA1\xE0", u"\u0E01\u0E40"},
                     {1250, "\xE8\xF8", u"čř"},
                     {1251, "\xCF\xF0", u"Пр"},
                     {1253, "\xC1\xE1", u"Αα"},
                     {1254, "\xFD\xFE", u"ış"},
                     {1255, "\xE0", u"\u05D0"},
                     {1256, "\xC7", u"\u0627"},
                     {1257, "\xE0", u"ą"},
                     {1258, "\xF0", u"đ"},
                     {10000, "\x8E\xD5", u"é’"},
                     {65001, "\xC3\xA9", u"é"},
                     {42, "A \xB7", u"\uF041 \uF0B7"},
                     {0, "\x80", u"€"},
                     {932, "\x83\x6F\xB1\xA0\xFD\xF0\x40", u"バｱ\u00A0\uFFFD\uE000"},
                     {936, "\x80\xD2\xBB\x81\x40\xFE\x4F", u"€一丂\uFA29"},
                     {949, "\xB0\xA1\x81\x41\xCA\xA1", u"가갂伽"},
                     {950, "\xA4\x40\xC9\x40\xF9\xD5", u"一乂龘"},
                     {950, "\xA4 \x81\x81x\x81", u"\uFFFD \uFFFDx\uFFFD"},
                     {99999, "\xE9\x92", u"é’"}};
  for (const auto& c : cases) EXPECT_EQ(Decoded(c.page, c.bytes), c.text) << c.page;
}

TEST(CodePage, EveryTableIsWhole) {
  int tables = 0;
  for (int page = 0; page < 11000; ++page) {
    const char16_t* upper = UpperHalf(page);
    if (!upper || page == kPageOfWindows) continue;
    ++tables;
    EXPECT_EQ(std::char_traits<char16_t>::length(upper), 128u) << page;
  }
  EXPECT_EQ(tables, 32);
}

}  // namespace
}  // namespace lumenote
