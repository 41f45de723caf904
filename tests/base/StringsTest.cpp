// Encodings, text helpers, error descriptions.
#include <gtest/gtest.h>
#include <tuple>

#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "base/Windows1252.h"

namespace lumenote {
namespace {

TEST(Strings, Utf8BothWaysAndReplacements) {
  const std::tuple<std::string_view, std::u16string_view, bool> rows[] = {
      {"", u"", true},
      {"a\x7F\xC2\x80\xDF\xBF", u"a\x7F\x80\x7FF", true},
      {"\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\x800\xD7FF\xE000\xFFFF", true},
      {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF", true},
      {"a\xFFz\x80\xC0\xAF", u"a\xFFFDz\xFFFD\xFFFD\xFFFD", false},
      {"\xE2\x82x\xE2\xC3\xA9\xE2\x82", u"\xFFFDx\xFFFDé\xFFFD", false},
      {"\xED\xA0\x80\xF0\x9F\x98", u"\xFFFD\xFFFD\xFFFD\xFFFD", false},
      {"\xF4\x90\x80\x80", u"\xFFFD\xFFFD\xFFFD\xFFFD", false}};
  for (const auto& [bytes, text, good] : rows) {
    EXPECT_EQ(IsUtf8(bytes), good) << bytes;
    EXPECT_EQ(FromUtf8(bytes), text);
    EXPECT_TRUE(!good || ToUtf8(text) == bytes) << bytes;
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

TEST(Windows1252, TakesEachByteThereAndBackAndWritesAQuestionMarkForWhatItLacks) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  const std::u16string text = Decode1252(bytes);
  EXPECT_EQ(Encode1252(text), bytes);
  EXPECT_TRUE(Fits1252(text));
  EXPECT_EQ(text.substr(0x80, 2), u"\u20AC\x81");
  EXPECT_EQ(Encode1252(u"a\u0416b\U0001F600c\xD83D\x80"), "a?b?c??");
  EXPECT_FALSE(Fits1252(u"a\u0416"));
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
