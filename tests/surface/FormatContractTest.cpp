// Attributes of characters and paragraphs, as every surface must do them.
#include <cmath>

#include "surface/SurfaceContract.h"
#include "surface/editing/ParagraphSpacing.h"

namespace lumenote {
namespace {

TEST_F(SurfaceContract, OutOfRangeAttributesRaise) {
  Put(u"^abc|");
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

TEST_F(SurfaceContract, ChosenFormatGoesWithTheTextTypedNext) {
  Put(u"ab|");
  s.SelBold(true);
  EXPECT_EQ(s.SelBold(), true);
  EXPECT_FALSE(s.CanUndo());
  s.SelText(u"");
  s.SelText(u"c");
  EXPECT_EQ(s.SelBold(), true);  // of the character before the caret
  Select(u"ab^c|");
  EXPECT_EQ(s.SelBold(), true);
  Select(u"^ab|c");
  EXPECT_EQ(s.SelBold(), false);
  Select(u"ab|c");
  s.SelItalic(true);
  Select(u"a|bc");
  Select(u"ab|c");
  EXPECT_EQ(s.SelItalic(), false);  // forgotten as the caret moved
  s.SelItalic(true);
  s.Undo();
  EXPECT_EQ(s.SelItalic(), false);
}

TEST_F(SurfaceContract, ParagraphStartTakesTheFormatBehindIt) {
  Put(u"a¶^b|");
  s.SelBold(true);
  Select(u"a¶|b");
  EXPECT_EQ(s.SelBold(), true);
  Select(u"a|¶b");
  EXPECT_EQ(s.SelBold(), false);
}

TEST_F(SurfaceContract, SelectAllTakesInTheFinalMark) {
  Put(u"^abc|");
  s.SelFontSize(24);
  Select(u"^abc|");
  s.SelText(u"");
  s.SelStart(0);
  s.SelText(u"x");
  Select(u"^x|");
  EXPECT_EQ(s.SelFontSize(), 24.0F);
}

TEST_F(SurfaceContract, ParagraphAttributesGoToTheParagraphsTouched) {
  struct Row {
    std::u16string_view selection;
    const char* touched;
  };
  const Row rows[] = {{u"a|b¶cd¶¶ef", "1000"}, {u"a^b¶|cd¶¶ef", "1000"}, {u"a^b¶c|d¶¶ef", "1100"},
                      {u"ab¶cd¶|¶ef", "0010"}, {u"ab¶cd¶^¶|ef", "0010"}, {u"^ab¶cd¶¶ef|", "1111"},
                      {u"ab¶cd¶¶ef|", "0001"}, {u"ab¶c^d¶¶e|f", "0111"}};
  for (const Row& row : rows) {
    Put(row.selection);
    s.SelIndent(-150);
    EXPECT_EQ(s.SelIndent(), -150);
    std::string touched;
    for (const Position at : {0, 4, 8, 10}) {
      s.SelStart(at);
      touched += s.SelIndent() == -150 ? '1' : '0';
    }
    EXPECT_EQ(touched, row.touched);
    s.Undo();
    EXPECT_EQ(Shown(), row.selection);
    EXPECT_EQ(s.SelIndent(), 0);
  }
}

TEST_F(SurfaceContract, JustifiedReadsAsLeftUntilAnAlignmentIsSet) {
  s.TextRTF(u"{\\rtf1\\pard\\qj abc\\par }");
  EXPECT_EQ(s.SelAlignment(), 0);
  EXPECT_NE(s.TextRTF().find(u"\\qj"), std::u16string::npos);
  s.SelAlignment(0);
  EXPECT_EQ(s.TextRTF().find(u"\\qj"), std::u16string::npos);
}

TEST_F(SurfaceContract, LineSpacing) {
  Put(u"^ab¶cd|");
  EXPECT_EQ(LineSpacing(s), 20);
  struct Row {
    int value;
    LineRule rule;
  };
  for (const auto& [value, rule] : {Row{20, LineRule::Multiple},
                                    {1, LineRule::Multiple},
                                    {100, LineRule::Multiple},
                                    {101, LineRule::Exact}}) {
    SetLineSpacing(s, value);
    EXPECT_EQ(LineSpacing(s), value);
    EXPECT_EQ(s.GetParaFormat(ParagraphRecord::kLineSpacing).lineSpacingRule, rule);
  }
  for (const auto& [value, rule] :
       {Row{20, LineRule::Single}, {30, LineRule::OneAndHalf}, {40, LineRule::Double}}) {
    s.SetParaFormat({.mask = ParagraphRecord::kLineSpacing, .lineSpacingRule = rule});
    EXPECT_EQ(LineSpacing(s), value);
  }
}

TEST_F(SurfaceContract, JoinedParagraphsKeepTheFirstFormat) {
  struct Row {
    std::u16string_view selection;
    int alignment;
  };
  const Row rows[] = {{u"a^b¶|cd", 2}, {u"^ab¶|cd", 0}, {u"^ab¶c|d", 0}, {u"ab^¶c|d", 2}};
  for (const Row& row : rows) {
    Put(u"ab|¶cd");
    s.SelAlignment(2);
    Select(row.selection);
    s.SelText(u"");
    EXPECT_EQ(s.SelAlignment(), row.alignment);
    s.Undo();
    EXPECT_EQ(Shown(), row.selection);
    s.SelStart(4);
    EXPECT_EQ(s.SelAlignment(), 0);
  }
}

}  // namespace
}  // namespace lumenote
