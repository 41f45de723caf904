// Text, selection, search and scans, as every surface must do them.
#include "surface/SurfaceContract.h"

namespace lumenote {
namespace {

TEST_F(SurfaceContract, SelectionIsTheTextBetween) {
  Put(u"été ^¶→ 𝄞 fi|n¶");
  for (Position start = 0; start <= 14; ++start)
    for (Position length = 0; length <= 14; ++length) {
      s.SelStart(start);
      const Position moved = s.SelStart();
      s.SelLength(length);
      const std::u16string text = s.Text();
      EXPECT_EQ(text.substr(static_cast<std::size_t>(s.SelStart()),
                            static_cast<std::size_t>(s.SelLength())),
                s.SelText());
      EXPECT_LE(moved, start);
      EXPECT_EQ(s.SelStart(), moved);
      EXPECT_GE(s.SelLength(), std::min(length, 14 - moved));
    }
}

TEST_F(SurfaceContract, WhatChangesNothingIsSilent) {
  Put(u"un ^deux|¶");
  s.SelBold(true);
  s.SelIndent(150);
  Changes();
  EditGroup group(s);
  s.SelText(u"deux");
  EXPECT_EQ(Shown(), u"un deux|¶");
  s.SelText(u"");
  Select(u"un ^deux|¶");
  s.SelBold(true);
  s.SelFontName(u"Arial");
  s.SelFontSize(10);
  s.SelColor(0);
  s.SelCharOffset(0);
  s.SelIndent(150);
  s.SelAlignment(0);
  s.SelBullet(false);
  s.RightMargin(0);
  s.Paste();
  EXPECT_EQ(Changes(), 0);
}

TEST_F(SurfaceContract, SpanAndUpTo) {
  constexpr std::u16string_view kWord = u"\r\n ,;:.?!";
  struct Row {
    std::u16string_view before, set;
    bool upTo, forward, negate;
    std::u16string_view after;
  };
  const Row rows[] = {{u"dit: bonjour|, monde", kWord, false, true, true, u"dit: bonjour|, monde"},
                      {u"|a", kWord, false, false, true, u"|a"},
                      {u"a|  ¶ b", u" \r", false, true, false, u"a^  ¶ |b"},
                      {u"|𝄞𝄞a", u"𝄞", false, true, false, u"^𝄞𝄞|a"},
                      {u"a^bc|de;f", u";", true, true, false, u"abcde|;f"},
                      {u"a;b^cd|e", u";", true, false, false, u"a;|bcde"},
                      {u"a|  b", u" ", true, true, true, u"a  |b"},
                      {u"a |  b", u" ", true, false, true, u"a|   b"},
                      {u"a^b|c", u";", true, true, false, u"a^b|c"},
                      {u"a^b|c", u";", true, false, false, u"a^b|c"}};
  for (const Row& row : rows) {
    Put(row.before);
    row.upTo ? s.UpTo(row.set, row.forward, row.negate) : s.Span(row.set, row.forward, row.negate);
    EXPECT_EQ(Shown(), row.after);
  }
}

TEST_F(SurfaceContract, LinesAreThoseOfTheLayout) {
  Put(u"un deux trois quatre¶¶cinq↓six|");
  struct Row {
    Position position;
    std::int32_t line;
    Position start, length;
  };
  const Row rows[] = {{-5, 0, 0, 14}, {0, 0, 0, 14},  {13, 0, 0, 14}, {14, 1, 14, 6},
                      {20, 1, 14, 6}, {22, 2, 22, 0}, {24, 3, 24, 4}, {28, 3, 24, 4},
                      {29, 4, 29, 3}, {99, 4, 29, 3}};
  for (const Row& row : rows) {
    EXPECT_EQ(s.LineFromChar(row.position), row.line) << row.position;
    EXPECT_EQ(s.LineIndex(row.line), row.start) << row.position;
    EXPECT_EQ(s.LineLength(row.position), row.length) << row.position;
  }
  EXPECT_EQ(s.LineIndex(5), -1);
  EXPECT_EQ(s.LineIndex(-1), -1);
}

}  // namespace
}  // namespace lumenote
