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
