// Every delimiter of a unit of text, every separator of proper case, on a surface without a window.
#include <gtest/gtest.h>

#include "base/ErrorOf.h"
#include "selection/LetterCase.h"
#include "selection/TextUnits.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

class UnitsTest : public testing::Test, protected UserBench {
 protected:
  /// What is selected when `select` has run on that selection.
  std::u16string Selected(void (*select)(RichTextSurface&), std::u16string_view text,
                          Position start, Position length = 0) {
    surface.Text(text);
    surface.SelStart(start);
    surface.SelLength(length);
    select(surface);
    return surface.SelText();
  }
};

TEST_F(UnitsTest, EachDelimiterEndsItsUnitsOnBothSides) {
  const struct {
    char16_t delimiter;
    bool word, sentence;
  } cases[] = {{u' ', true, false},   {u',', true, false},   {u';', true, false},
               {u':', true, false},   {u'.', true, true},    {u'?', true, true},
               {u'!', true, true},    {u'\t', false, false}, {u'-', false, false},
               {u'\'', false, false}, {u'\v', false, false}};
  for (const auto& c : cases) {
    const std::u16string text = std::u16string(u"ab") + c.delimiter + u"mn" + c.delimiter + u"yz";
    EXPECT_EQ(Selected(SelectMot, text, 4), c.word ? u"mn" : text) << int{c.delimiter};
    EXPECT_EQ(Selected(SelectPhrase, text, 4), c.sentence ? u"mn" : text) << int{c.delimiter};
    EXPECT_EQ(Selected(SelectParagraphe, text, 4), text) << int{c.delimiter};
  }
  EXPECT_EQ(Selected(SelectMot, u"ab\r\nmn\r\nyz", 5), u"mn");
  EXPECT_EQ(Selected(SelectPhrase, u"ab\r\nmn.yz", 5), u"ab\r\nmn");
  EXPECT_EQ(Selected(SelectParagraphe, u"ab\r\nm. n\r\nyz", 5), u"m. n");
  EXPECT_EQ(Selected(SelectParagraphe, u"ab\r\nmn\r\nyz", 1, 4), u"ab\r\nmn");
}

TEST_F(UnitsTest, ALineIsSelectedUnlessItsNumberIsBeyondSixteenBits) {
  const auto select = [](RichTextSurface& its) {
    bool failed = false;
    SelectLigne(its, failed);
    EXPECT_FALSE(failed);
  };
  EXPECT_EQ(Selected(select, u"ab\r\nmn\r\nyz", 5), u"mn");
  std::u16string lines;
  for (int line = 0; line < 32769; ++line) lines += u"a\r\n";
  EXPECT_EQ(Selected(select, lines, 3 * 32767), u"a");
  EXPECT_EQ(ErrorOf([&] { Selected(select, lines, 3 * 32768 + 1); }), 6);
  EXPECT_EQ(surface.SelStart(), 3 * 32768 + 1);
}

TEST_F(UnitsTest, ProperCaseBeginsAfterEachSeparatorAndNoOtherSign) {
  for (const char16_t separator : std::u16string_view(u"\0\t\n\v\f\r ", 7))
    EXPECT_EQ(ProperCase(std::u16string(u"éTÉ") + separator + u"aÏ"),
              std::u16string(u"Été") + separator + u"Aï")
        << int{separator};
  for (const char16_t other : std::u16string_view(u"-'.,(/\u00A0\b\x0E_1"))
    EXPECT_EQ(ProperCase(std::u16string(u"ÉTÉ") + other + u"Aï"),
              std::u16string(u"Été") + other + u"aï")
        << int{other};
}

}  // namespace
}  // namespace lumenote
