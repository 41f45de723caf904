// Searching and replacing.
#include <gtest/gtest.h>

#include "Model.h"
#include "base/Characters.h"
#include "document/Search.h"

namespace lumenote {
namespace {

constexpr SearchOptions kPlain{};
constexpr SearchOptions kCase{.matchCase = true};
constexpr SearchOptions kWord{.wholeWord = true};

std::u16string TextOf(const Document& document) { return document.Text(0, document.Length()); }

TEST(FindText, FindsByTheRules) {
  struct Case {
    std::u16string_view text, needle;
    SearchOptions options;
    Position from, to, found;
  };
  const Case cases[] = {{u"un été", u"ÉTÉ", kPlain, 0, 99, 3},
                        {u"un été", u"ÉTÉ", kCase, 0, 99, -1},
                        {u"ŒIL œil", u"œil", kCase, 0, 99, 4},
                        {u"ŒIL œil", u"œil", kPlain, 0, 99, 0},
                        {u"aab", u"ab", kPlain, 0, 99, 1},
                        {u"modern mode", u"mode", kWord, 0, 99, 7},
                        {u"l'été_a été.", u"été", kWord, 0, 99, 8},
                        {u"là-bas", u"l", kWord, 0, 99, -1},
                        {u"a.b", u".", kWord, 0, 99, -1},
                        {u"ab", u"b", kWord, 1, 2, -1},
                        {u"abab", u"ab", kPlain, 1, 4, 2},
                        {u"abab", u"ab", kPlain, 1, 3, -1},
                        {u"abab", u"ab", kPlain, -7, 2, 0},
                        {u"ab", u"", kPlain, 0, 2, -1},
                        {u"", u"a", kPlain, 0, 2, -1},
                        {u"ab", u"a", kPlain, 5, 9, -1},
                        {u"a\nb", u"a\r\nB", kPlain, 0, 99, 0},
                        {u"a\nb", u"\n", kPlain, 0, 99, -1},
                        {u"a\nb", u"a\r", kPlain, 0, 99, -1},
                        {u"\U0001F33C", u"\xDF3C", kPlain, 0, 99, -1},
                        {u"x\U0001F33C", u"\U0001F33C", kPlain, 0, 99, 1},
                        {u"de Ÿ", u"ÿ", kPlain, 0, 99, 3},
                        {u"de µ", u"\u03BC", kPlain, 0, 99, -1},
                        {u"de Ω", u"ω", kPlain, 0, 99, 3},
                        {u"de O", u"Ω", kPlain, 0, 99, -1}};
  // The arrow makes the leaf hold units instead of bytes.
  for (std::u16string_view tail : {u"", u" \u2192"}) {
    for (const Case& c : cases) {
      Document document;
      document.Replace(0, 0, PlainFragment(std::u16string(c.text) += tail, 0, 0));
      EXPECT_EQ(FindText(document, c.needle, c.from, c.to, c.options), c.found)
          << &c - cases << ": " << testing::PrintToString(c.needle);
    }
  }
}

/// A needle anywhere around the seams of leaves, and one that spans several.
TEST(FindText, CrossesLeaves) {
  for (Position at : {0, 1980, 2010, 2015, 2016, 2017, 4020, 4032, 4040}) {
    for (std::size_t length : {1, 2, 9, 5000}) {
      std::u16string needle(length, u'e');
      needle.front() = u'N';
      Document document;
      document.Replace(0, 0, PlainFragment(u"nn ", 0, 0));
      document.Replace(0, 0, PlainFragment(std::u16string(at, u'.').append(needle), 0, 0));
      EXPECT_EQ(FindText(document, Lower(needle), 0, document.Length(), kPlain), at);
      EXPECT_EQ(FindText(document, needle, 0, document.Length(), kWord), -1);
      const auto end = at + static_cast<Position>(length);
      document.Replace(end, end, PlainFragment(u" ", 0, 0));
      EXPECT_EQ(FindText(document, needle, at, document.Length(), kWord), at);
      document.Replace(at, at, PlainFragment(u"_", 0, 0));
      EXPECT_EQ(FindText(document, needle, at + 1, document.Length(), kWord), -1);
    }
  }
}

TEST(ReplaceAllText, AgreesWithANaiveReplacement) {
  Dice dice(3);
  for (const auto& [needle, with] : {std::pair{u"e", u"%%%"},
                                     {u"nt", u""},
                                     {u"ie", u"é\ni"},
                                     {u"zz", u"y"},
                                     {u"\r\n", u"¶"},
                                     {u"é", u"é"}}) {
    Model model;
    Document document;
    document.Replace(0, 0, RandomFragment(dice, 9000, model));
    Model expected;
    Position count = 0;
    const auto length = static_cast<Position>(std::u16string_view(needle).size());
    for (Position at = 0; at < model.Length();) {
      if (Lower(model.text.substr(at, length)) != needle) {
        expected.Add(model, at, at + 1);
        ++at;
        continue;
      }
      for (char16_t c : std::u16string_view(with)) {
        const std::u16string unit = c == u'\n' ? u"\r\n" : std::u16string(1, c);
        expected.Add(unit, model.characters[at], document.ParaFormatAt(at));
      }
      at += length;
      ++count;
    }
    const Replacement result = ReplaceAllText(document, needle, with, kPlain);
    EXPECT_EQ(result.count, count);
    EXPECT_EQ(ModelOf(result.whole.leaves, {}), expected);
  }
}

TEST(ReplaceAllText, SharesTheLeavesThatHoldNoMatch) {
  Document document;
  document.Replace(0, 0, PlainFragment(std::u16string(50000, u'.') + u"a", 0, 0));
  const Replacement result = ReplaceAllText(document, u"A", u"b", kPlain);
  EXPECT_EQ(result.count, 1);
  EXPECT_EQ(result.whole.leaves.CursorAt(0).Pointer(), document.Leaves().CursorAt(0).Pointer());
  document.Replace(0, document.Length(), result.whole);
  EXPECT_EQ(TextOf(document), std::u16string(50000, u'.') + u"b");
}

}  // namespace
}  // namespace lumenote
