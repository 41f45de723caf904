// Cases and kinds of characters.
#include <gtest/gtest.h>

#include "base/Characters.h"

namespace lumenote {
namespace {

struct CasePair {
  std::u16string_view small;
  std::u16string_view capital;
};

constexpr CasePair kPairs[] = {{u"abcz", u"ABCZ"},           {u"éèàçùâêîôûëïü", u"ÉÈÀÇÙÂÊÎÔÛËÏÜ"},
                               {u"œæÿøþð", u"ŒÆŸØÞÐ"},       {u"łśżąčřžőűğşțđ", u"ŁŚŻĄČŘŽŐŰĞŞȚĐ"},
                               {u"ơưǎǜɓə", u"ƠƯǍǛƁƏ"},       {u"αβγωάέήίόύώϊ", u"ΑΒΓΩΆΈΉΊΌΎΏΪ"},
                               {u"абвяёђџѣґ", u"АБВЯЁЂЏѢҐ"}, {u"ạằẽỗỵḁẕ", u"ẠẰẼỖỴḀẔ"},
                               {u"ἀὥᾳὰῶ", u"ἈὭᾼᾺῶ"}};

TEST(Characters, CasesMapBothWays) {
  for (const CasePair& pair : kPairs) {
    EXPECT_EQ(Upper(pair.small), pair.capital);
    EXPECT_EQ(Lower(pair.capital), pair.small);
    EXPECT_EQ(Upper(pair.capital), pair.capital);
    EXPECT_EQ(Lower(pair.small), pair.small);
  }
}

TEST(Characters, OneWayCases) {
  EXPECT_EQ(Upper(u"ß×÷µª123 \uFFFD\U0001F600"), u"ß×÷µª123 \uFFFD\U0001F600");
  EXPECT_EQ(Upper(u"ıſςǅ"), u"ISΣǄ");
  EXPECT_EQ(Lower(u"İẞΣǅ"), u"ißσǆ");
}

TEST(Characters, SmallAndCapitalOfEveryUnitAgree) {
  for (int i = 0; i < 0x10000; ++i) {
    const auto c = static_cast<char16_t>(i);
    EXPECT_EQ(ToLower(ToLower(c)), ToLower(c)) << i;
    EXPECT_EQ(ToUpper(ToUpper(c)), ToUpper(c)) << i;
    EXPECT_TRUE(IsLetter(c) || (ToLower(c) == c && ToUpper(c) == c)) << i;
  }
}

TEST(Characters, Kinds) {
  const struct {
    std::u16string_view characters;
    bool letters, word;
  } kCases[] = {{u"azAZéŒßªµżΩяאعक中ハ가\xD83D\xDE00", true, true},
                {u"09_\u0301\u05B0\u0663\u094D", false, true},
                {u" \t\r\n.,;'’«»-–×÷²\u00A0\u2028€\uFFFC@[`{/:^", false, false}};
  for (const auto& kind : kCases) {
    for (const char16_t c : kind.characters) {
      EXPECT_EQ(IsLetter(c), kind.letters) << static_cast<int>(c);
      EXPECT_EQ(IsWordCharacter(c), kind.word) << static_cast<int>(c);
    }
  }
}

}  // namespace
}  // namespace lumenote
