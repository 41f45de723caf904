// Conversions at the edges, text helpers, error descriptions.
#include <gtest/gtest.h>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

using Pair = std::pair<std::string_view, std::u16string_view>;

TEST(Strings, Utf8BothWays) {
  for (const auto& [bytes, text] :
       {Pair("", u""), Pair("a\x7F\xC2\x80\xDF\xBF", u"a\x7F\x80\x7FF"),
        Pair("\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\x800\xD7FF\xE000\xFFFF"),
        Pair("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF")}) {
    EXPECT_TRUE(IsUtf8(bytes));
    EXPECT_EQ(FromUtf8(bytes), text);
    EXPECT_EQ(ToUtf8(text), bytes);
  }
}

TEST(Strings, IllFormedUtf8BecomesReplacements) {
  for (const auto& [bytes, text] :
       {Pair("a\xFFz\x80", u"a\xFFFDz\xFFFD"), Pair("\xC0\xAF", u"\xFFFD\xFFFD"),
        Pair("\xE2\x82", u"\xFFFD"), Pair("\xE2\x82x", u"\xFFFDx"),
        Pair("\xE2\xC3\xA9", u"\xFFFDé"), Pair("\xED\xA0\x80", u"\xFFFD\xFFFD\xFFFD"),
        Pair("\xF0\x9F\x98", u"\xFFFD"), Pair("\xF4\x90\x80\x80", u"\xFFFD\xFFFD\xFFFD\xFFFD")}) {
    EXPECT_FALSE(IsUtf8(bytes));
    EXPECT_EQ(FromUtf8(bytes), text);
  }
  EXPECT_EQ(ToUtf8(u"\xD800x\xDC00\xD800"), "\xEF\xBF\xBDx\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Strings, Helpers) {
  EXPECT_EQ(TrimSpaces(u"  a b  "), u"a b");
  EXPECT_EQ(TrimSpaces(u"\ta\u00A0"), u"\ta\u00A0");
  EXPECT_EQ(TrimSpaces(u"   "), u"");
  EXPECT_EQ(ReplaceEvery(u"a\\\\\\\\b\\\\\\", u"\\\\", u"\\"), u"a\\\\b\\\\");
  EXPECT_EQ(ReplaceEvery(u"aaa", u"a", u"aa"), u"aaaaaa");
  EXPECT_EQ(ReplaceEvery(u"xax", u"x", u""), u"a");
  EXPECT_EQ(WithCrLf(u"a\nb\rc\r\nd"), u"a\r\nb\r\nc\r\nd");
  EXPECT_EQ(WithCrLf(u"\n\r\r\n\n"), u"\r\n\r\n\r\n\r\n");
}

TEST(RuntimeErrors, CarryNumberAndFrenchDescription) {
  const RuntimeError error(ErrorNumber::PathAccess);
  EXPECT_EQ(error.Number(), 75);
  EXPECT_EQ(error.Description(), u"Erreur d'accès au chemin/fichier");
  EXPECT_STREQ(error.what(), "Erreur d'accès au chemin/fichier");
  EXPECT_FALSE(IgnoringErrors([] { throw RuntimeError(ErrorNumber::Overflow, u"x"); }));
  EXPECT_TRUE(IgnoringErrors([] {}));
}

}  // namespace
}  // namespace lumenote
