// Attributes of characters and paragraphs, as every surface must do them.
#include <cmath>

#include "surface/ParagraphSpacing.h"
#include "surface/SurfaceContract.h"

namespace lumenote {
namespace {

TEST_P(SurfaceContract, EachCharacterAttributeIsReadBackMixedAndUndone) {
  struct Row {
    const char* name;
    std::function<void()> set;
    std::function<std::string()> read;
  };
  const auto shown = [](const auto& value) {
    return value ? ::testing::PrintToString(*value) : std::string("mixed");
  };
  const Row rows[] = {
      {"bold", [&] { s.SelBold(true); }, [&] { return shown(s.SelBold()); }},
      {"italic", [&] { s.SelItalic(true); }, [&] { return shown(s.SelItalic()); }},
      {"underline", [&] { s.SelUnderline(true); }, [&] { return shown(s.SelUnderline()); }},
      {"strike", [&] { s.SelStrikeThru(true); }, [&] { return shown(s.SelStrikeThru()); }},
      {"offset", [&] { s.SelCharOffset(-55); }, [&] { return shown(s.SelCharOffset()); }},
      {"font", [&] { s.SelFontName(u"Symbol"); }, [&] { return shown(s.SelFontName()); }},
      {"size", [&] { s.SelFontSize(11.5F); }, [&] { return shown(s.SelFontSize()); }},
      {"colour", [&] { s.SelColor(0x123456); }, [&] { return shown(s.SelColor()); }}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Put(s, u"un ^deux¶tr|ois");
    Changes();
    const std::string before = row.read();
    row.set();
    const std::string after = row.read();
    EXPECT_NE(after, before);
    EXPECT_EQ(Changes(), 1);
    SelectAs(s, u"^un de|ux¶trois");
    EXPECT_EQ(row.read(), "mixed");
    row.set();
    EXPECT_EQ(row.read(), after);
    s.Undo();
    EXPECT_EQ(row.read(), "mixed");
    s.Undo();
    EXPECT_EQ(Marked(s), u"un ^deux¶tr|ois");
    EXPECT_EQ(row.read(), before);
    s.Redo();
    EXPECT_EQ(row.read(), after);
  }
}

TEST_P(SurfaceContract, OutOfRangeAttributesRaise) {
  Put(s, u"^abc|");
  Changes();
  for (const float points : {0.5F, 0.0F, -3.0F, 1638.5F, std::nanf("")})
    EXPECT_EQ(ErrorOf([&] { s.SelFontSize(points); }), 380) << points;
  for (const int alignment : {-1, 3})
    EXPECT_EQ(ErrorOf([&] { s.SelAlignment(alignment); }), 380) << alignment;
  EXPECT_EQ(ErrorOf([&] { s.SelColor(-1); }), 380);
  EXPECT_EQ(ErrorOf([&] { s.SelCharOffset(40000); }), 6);
  EXPECT_EQ(ErrorOf([&] { s.RightMargin(-1); }), 380);
  EXPECT_EQ(Changes(), 0);
}

TEST_P(SurfaceContract, ChosenFormatGoesWithTheTextTypedNext) {
  Put(s, u"ab|");
  s.SelBold(true);
  EXPECT_EQ(s.SelBold(), true);
  EXPECT_FALSE(s.CanUndo());
  s.SelText(u"");
  s.SelText(u"c");
  EXPECT_EQ(s.SelBold(), true);  // of the character before the caret
  SelectAs(s, u"ab^c|");
  EXPECT_EQ(s.SelBold(), true);
  SelectAs(s, u"^ab|c");
  EXPECT_EQ(s.SelBold(), false);
  SelectAs(s, u"ab|c");
  s.SelItalic(true);
  SelectAs(s, u"a|bc");
  SelectAs(s, u"ab|c");
  EXPECT_EQ(s.SelItalic(), false);  // forgotten as the caret moved
}

TEST_P(SurfaceContract, ReplacementTakesTheFirstCharactersFormat) {
  Put(s, u"^un| deux");
  s.SelBold(true);
  SelectAs(s, u"^un deux|");
  s.SelText(u"UN DEUX");
  SelectAs(s, u"^UN DEUX|");
  EXPECT_EQ(s.SelBold(), true);
  SelectAs(s, u"^UN| DEUX");
  s.SelFontName(u"Symbol");  // emptying first keeps the format for what comes next
  s.SelText(u"");
  s.SelText(u"x");
  SelectAs(s, u"^x| DEUX");
  EXPECT_EQ(s.SelFontName(), u"Symbol");
}

TEST_P(SurfaceContract, ParagraphStartTakesTheFormatBehindIt) {
  Put(s, u"a¶^b|");
  s.SelBold(true);
  SelectAs(s, u"a¶|b");
  EXPECT_EQ(s.SelBold(), true);
  SelectAs(s, u"a|¶b");
  EXPECT_EQ(s.SelBold(), false);
}

TEST_P(SurfaceContract, SelectAllTakesInTheFinalMark) {
  Put(s, u"^abc|");
  s.SelFontSize(24);
  SelectAs(s, u"^abc|");
  s.SelText(u"");
  s.SelStart(0);
  s.SelText(u"x");
  SelectAs(s, u"^x|");
  EXPECT_EQ(s.SelFontSize(), 24.0F);
}

TEST_P(SurfaceContract, ParagraphAttributesGoToTheParagraphsTouched) {
  struct Row {
    std::u16string_view selection;
    const char* touched;
  };
  const Row rows[] = {{u"a|b¶cd¶¶ef", "1000"}, {u"a^b¶|cd¶¶ef", "1000"}, {u"a^b¶c|d¶¶ef", "1100"},
                      {u"ab¶cd¶|¶ef", "0010"}, {u"ab¶cd¶^¶|ef", "0010"}, {u"^ab¶cd¶¶ef|", "1111"},
                      {u"ab¶cd¶¶ef|", "0001"}, {u"ab¶c^d¶¶e|f", "0111"}};
  for (const Row& row : rows) {
    Put(s, row.selection);
    s.SelIndent(-150);
    EXPECT_EQ(s.SelIndent(), -150);
    std::string touched;
    for (const Position at : {0, 4, 8, 10}) {
      s.SelStart(at);
      touched += s.SelIndent() == -150 ? '1' : '0';
    }
    EXPECT_EQ(touched, row.touched);
    s.Undo();
    EXPECT_EQ(Marked(s), row.selection);
    EXPECT_EQ(s.SelIndent(), 0);
  }
}

TEST_P(SurfaceContract, ParagraphAttributesAreApart) {
  Put(s, u"a|b¶cd");
  s.SelIndent(165);
  s.SelHangingIndent(-135);
  s.SelRightIndent(30);
  s.SelAlignment(2);
  s.SelBullet(true);
  EXPECT_EQ(s.SelIndent(), 165);
  EXPECT_EQ(s.SelHangingIndent(), -135);
  EXPECT_EQ(s.SelRightIndent(), 30);
  EXPECT_EQ(s.SelAlignment(), 2);
  EXPECT_EQ(s.SelBullet(), true);
  SelectAs(s, u"^ab¶cd|");
  EXPECT_EQ(s.SelIndent(), std::nullopt);
  EXPECT_EQ(s.SelAlignment(), std::nullopt);
  EXPECT_EQ(s.SelBullet(), std::nullopt);
}

TEST_P(SurfaceContract, JustifiedReadsAsLeftUntilAnAlignmentIsSet) {
  s.TextRTF(u"{\\rtf1\\pard\\qj abc\\par }");
  EXPECT_EQ(s.SelAlignment(), 0);
  EXPECT_NE(s.TextRTF().find(u"\\qj"), std::u16string::npos);
  s.SelAlignment(0);
  EXPECT_EQ(s.TextRTF().find(u"\\qj"), std::u16string::npos);
}

TEST_P(SurfaceContract, LineSpacingAndSpaceAround) {
  Put(s, u"^ab¶cd|");
  EXPECT_EQ(LineSpacing(s), 20);
  struct Row {
    int value;
    LineSpacingRule rule;
  };
  for (const auto& [value, rule] : {Row{20, LineSpacingRule::Multiple},
                                    {1, LineSpacingRule::Multiple},
                                    {100, LineSpacingRule::Multiple},
                                    {101, LineSpacingRule::Exact}}) {
    SetLineSpacing(s, value);
    EXPECT_EQ(LineSpacing(s), value);
    EXPECT_EQ(s.GetParaFormat(ParagraphRecord::kLineSpacing).lineSpacingRule, rule);
  }
  for (const auto& [value, rule] : {Row{20, LineSpacingRule::Single},
                                    {30, LineSpacingRule::OneAndHalf},
                                    {40, LineSpacingRule::Double}}) {
    s.SetParaFormat({.mask = ParagraphRecord::kLineSpacing, .lineSpacingRule = rule});
    EXPECT_EQ(LineSpacing(s), value);
  }
  SetSpaceBefore(s, -15);
  SetSpaceAfter(s, 60);
  s.SelStart(5);
  EXPECT_EQ(SpaceBefore(s), -15);
  EXPECT_EQ(SpaceAfter(s), 60);
  EXPECT_EQ(s.GetParaFormat(ParagraphRecord::kSpaceAfter).spaceBefore, 0);
}

TEST_P(SurfaceContract, RightMarginIsNoPartOfTheDocument) {
  Put(s, u"abc|");
  Changes();
  s.RightMargin(2880);
  EXPECT_EQ(s.RightMargin(), 2880.0F);
  EXPECT_EQ(Changes(), 0);
  EXPECT_FALSE(s.CanUndo());
  s.Text(u"");
  EXPECT_EQ(s.RightMargin(), 2880.0F);
}

TEST_P(SurfaceContract, JoinedParagraphsKeepTheFirstFormat) {
  struct Row {
    std::u16string_view selection;
    int alignment;
  };
  const Row rows[] = {{u"a^b¶|cd", 2}, {u"^ab¶|cd", 0}, {u"^ab¶c|d", 0}, {u"ab^¶c|d", 2}};
  for (const Row& row : rows) {
    Put(s, u"ab|¶cd");
    s.SelAlignment(2);
    SelectAs(s, row.selection);
    s.SelText(u"");
    EXPECT_EQ(s.SelAlignment(), row.alignment);
    s.Undo();
    EXPECT_EQ(Marked(s), row.selection);
    s.SelStart(4);
    EXPECT_EQ(s.SelAlignment(), 0);
  }
}

}  // namespace
}  // namespace lumenote
