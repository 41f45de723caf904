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

// The text, ">" and the needle: "|" stands where it is found, "[" and "]" around what is searched.
TEST(FindText, FindsByTheRules) {
  const std::pair<SearchOptions, std::vector<std::u16string_view>> rows[] = {
      {kPlain,
       {u"un |été>ÉTÉ", u"|ŒIL œil>œil", u"a|ab>ab", u"a[b|ab]>ab", u"a[ba]b>ab", u"[|ab]ab>ab",
        u"ab>", u">a", u"ab[]>b", u"|a\nb>a\r\nB", u"a\nb>\n", u"a\nb>a\r", u"\U0001F33C>\xDF3C",
        u"x|\U0001F33C>\U0001F33C", u"de |Ÿ>ÿ", u"de µ>\u03BC", u"de |Ω>ω", u"de O>Ω"}},
      {kCase, {u"un été>ÉTÉ", u"ŒIL |œil>œil"}},
      {kWord, {u"modern |mode>mode", u"l'été_a |été.>été", u"là-bas>l", u"a.b>.", u"a[b]>b"}}};
  for (const auto& [options, texts] : rows)
    for (const std::u16string_view row : texts) {
      std::u16string text(row.substr(0, row.find(u'>')));
      const auto mark = [&](char16_t sign) {
        const std::size_t at = text.find(sign);
        if (at != text.npos) text.erase(at, 1);
        return static_cast<Position>(at);
      };
      const Position from = mark(u'['), found = mark(u'|'), to = mark(u']');
      const std::u16string_view needle = row.substr(row.find(u'>') + 1);
      for (const std::u16string_view tail : {u"", u" \u2192"}) {  // bytes and units in the leaf
        Document document;
        document.Replace(0, 0, PlainFragment(text += tail, 0, 0));
        EXPECT_EQ(FindText(document, needle, from, to < 0 ? 99 : to, options), found)
            << testing::PrintToString(row);
      }
    }
}

/// A needle anywhere around the seams of leaves, and one that spans several.
TEST(FindText, CrossesLeaves) {
  for (Position at : {0, 1980, 2010, 2015, 2016, 2017, 4032}) {
    for (std::size_t length : {1, 2, 5000}) {
      const std::u16string needle = u"N" + std::u16string(length - 1, u'e');
      Document document;
      document.Replace(0, 0, PlainFragment(std::u16string(at, u'.') + needle + u"nn ", 0, 0));
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

TEST(ReplaceAllText, SharesTheLeavesThatHoldNoMatch) {
  Document document;
  document.Replace(0, 0, PlainFragment(u"a" + std::u16string(50000, u'.') + u"A", 0, 0));
  const auto result =
      ReplaceAllText(document, u"A", u"b", kPlain, 9, [](CharId format) { return format; });
  ASSERT_TRUE(result);
  EXPECT_EQ(result->count, 2);
  const auto second = [](const LeafList& leaves) { return leaves.CursorAt(5000).Pointer(); };
  EXPECT_EQ(second(result->fragment.leaves), second(document.Leaves()));
}

}  // namespace
}  // namespace lumenote
