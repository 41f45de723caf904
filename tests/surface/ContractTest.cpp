// Scans, lines, attributes, history, failures and what is kept, as every surface must do them.
#include <cmath>

#include "base/Rows.h"
#include "surface/SurfaceContract.h"
#include "surface/editing/ParagraphSpacing.h"

namespace lumenote {
namespace {

// "+" looks forwards, "!" negates the set.
TEST_F(SurfaceContract, SpanAndUpTo) {
  for (const auto& [before, act, set, after] : Rows16<4>(R"(
dit: bonjour|, monde => span+! => ␣,;:.?! => dit: bonjour|, monde ¦ |a => span! => x => |a
a|  ¶ b => span+ => ␣¶ => a^  ¶ |b ¦ |𝄞𝄞a => span+ => 𝄞 => ^𝄞𝄞|a
a^bc|de;f => to+ => ; => abcde|;f ¦ a;b^cd|e => to => ; => a;|bcde ¦ a^b|c => to+ => ; => a^b|c
a|  b => to+! => ␣ => a  |b ¦ a |  b => to! => ␣ => a|   b ¦ a^b|c => to => ; => a^b|c
)",
                                                         " => ")) {
    Put(before);
    const bool forward = act.find(u'+') != act.npos, negate = act.ends_with(u'!');
    const std::u16string signs = Unmarked(set);
    act.starts_with(u"to") ? s.UpTo(signs, forward, negate) : s.Span(signs, forward, negate);
    EXPECT_EQ(Shown(), after);
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
  for (const int line : {-1, 5}) EXPECT_EQ(s.LineIndex(line), -1);
}

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

TEST_F(SurfaceContract, ParagraphStartTakesTheFormatBehindItAndSelectAllTheFinalMark) {
  Put(u"a¶^b|");
  s.SelBold(true);
  Select(u"a¶|b");
  EXPECT_EQ(s.SelBold(), true);
  Select(u"a|¶b");
  EXPECT_EQ(s.SelBold(), false);
  Put(u"^abc|");
  s.SelFontSize(24);
  Select(u"^abc|");
  s.SelText(u"");
  s.SelText(u"x");
  Select(u"^x|");
  EXPECT_EQ(s.SelFontSize(), 24.0F);
}

TEST_F(SurfaceContract, ParagraphAttributesGoToTheParagraphsTouched) {
  const std::pair<std::u16string_view, const char*> rows[] = {
      {u"a|b¶cd¶¶ef", "1000"}, {u"a^b¶|cd¶¶ef", "1000"}, {u"a^b¶c|d¶¶ef", "1100"},
      {u"ab¶cd¶|¶ef", "0010"}, {u"ab¶cd¶^¶|ef", "0010"}, {u"^ab¶cd¶¶ef|", "1111"},
      {u"ab¶cd¶¶ef|", "0001"}, {u"ab¶c^d¶¶e|f", "0111"}};
  for (const auto& [selection, expected] : rows) {
    Put(selection);
    s.SelIndent(-150);
    EXPECT_EQ(s.SelIndent(), -150);
    std::string touched;
    for (const Position at : {0, 4, 8, 10}) {
      s.SelStart(at);
      touched += s.SelIndent() == -150 ? '1' : '0';
    }
    EXPECT_EQ(touched, expected);
    s.Undo();
    EXPECT_EQ(Shown(), selection);
    EXPECT_EQ(s.SelIndent(), 0);
  }
}

TEST_F(SurfaceContract, WhatIsSetIsSaidInTheNote) {
  s.TextRTF(uR"({\rtf1\rtlpar\ls1 a})");
  s.SelIndent(300);
  s.SelIndent(0);
  s.SelRightIndent(0);
  s.SelAlignment(0);
  s.SetParaFormat({.mask = ParagraphRecord::kSpaceAfter});
  const std::u16string words = u"\\rtlpar\\ls1\\ilvl0\\fi0\\li0\\ri0\\sa0\\ql a\\par";
  EXPECT_NE(s.TextRTF().find(words), words.npos) << ToUtf8(s.TextRTF());
}

TEST_F(SurfaceContract, JoinedParagraphsKeepTheFirstFormat) {
  const std::pair<std::u16string_view, int> rows[] = {
      {u"a^b¶|cd", 2}, {u"^ab¶|cd", 0}, {u"^ab¶c|d", 0}, {u"ab^¶c|d", 2}};
  for (const auto& [selection, alignment] : rows) {
    Put(u"ab|¶cd");
    s.SelAlignment(2);
    Select(selection);
    s.SelText(u"");
    EXPECT_EQ(s.SelAlignment(), alignment);
    s.Undo();
    EXPECT_EQ(Shown(), selection);
    s.SelStart(4);
    EXPECT_EQ(s.SelAlignment(), 0);
  }
}

TEST_F(SurfaceContract, JustifiedReadsAsLeftUntilAnAlignmentIsSet) {
  s.TextRTF(u"{\\rtf1\\pard\\qj abc\\par }");
  EXPECT_EQ(s.SelAlignment(), 0);
  EXPECT_NE(s.TextRTF().find(u"\\qj"), std::u16string::npos);
  s.SelAlignment(0);
  EXPECT_EQ(s.TextRTF().find(u"\\qj"), std::u16string::npos);
}

// An edit states what it sets, even if it looks the same.
TEST_F(SurfaceContract, WhatNobodyStatesIsShownAndStaysUnsaid) {
  const auto saved = [&] {
    const std::u16string rtf = s.TextRTF();
    return rtf.substr(rtf.find(u"\\pard") + 5);
  };
  for (const auto& [source, font, points, body] : Rows16<4>(R"(
\b ab => Arial => 10 => \b ab ¦ \fs24\li0 ab => Arial => 12 => \li0\fs24 ab
\deff1{\fonttbl{\f1 Courier;}}\plain\qc ab => Courier => 10 => \qc\plain ab
{\fonttbl{\f0 Courier;}}\f0\cf0 ab => Courier => 10 => \cf0\f0 ab
)",
                                                            " => ")) {
    s.TextRTF(u"{\\rtf1" + source + u"\\par}");
    EXPECT_EQ(s.SelFontName(), font);
    EXPECT_EQ(s.SelFontSize(), std::stof(ToUtf8(points)));
    EXPECT_EQ(saved(), body + u"\\par }\r\n");
  }
  s.TextRTF(u"{\\rtf1\\sa4 a\\plain b\\sa6}");
  EXPECT_EQ(saved(), u"\\sa4 a\\plain b\\sa6\\par }\r\n");
  Select(u"^a|b");
  s.SelBold(true);
  s.SelAlignment(1);
  EXPECT_EQ(saved(), u"\\sa6\\qr\\b a\\b0 b\\par }\r\n");
  s.TextRTF(u"{\\rtf1 ab\\par}");
  Select(u"^a|b");
  s.SelFontName(*s.SelFontName());
  EXPECT_EQ(saved(), u"\\f1 a{}\\plain b\\par }\r\n");
  s.SelFontSize(*s.SelFontSize());
  EXPECT_EQ(saved(), u"\\f1\\fs20 a{}\\plain b\\par }\r\n");
}

TEST_F(SurfaceContract, LineSpacing) {
  Put(u"^ab¶cd|");
  for (const int value : {20, 1, 100, 101}) {
    SetLineSpacing(s, value);
    EXPECT_EQ(LineSpacing(s), value);
    EXPECT_EQ(s.GetParaFormat(ParagraphRecord::kLineSpacing).lineSpacingRule,
              value > 100 ? LineRule::Exact : LineRule::Multiple);
  }
  for (const LineRule rule : {LineRule::Single, LineRule::OneAndHalf, LineRule::Double}) {
    s.SetParaFormat({.mask = ParagraphRecord::kLineSpacing, .lineSpacingRule = rule});
    EXPECT_EQ(LineSpacing(s), 20 + 10 * static_cast<int>(rule));
  }
}

TEST_F(SurfaceContract, TextModeDecidesHowMuchIsKept) {
  Put(u"|a");
  s.SelText(u"a");
  EXPECT_EQ(ErrorOf([&] { s.TextMode(kTextModeRichMultilevel); }), 380);
  for (const auto& [mode, steps] : {std::pair{2, 1}, {kTextModeRichMultilevel, 3}}) {
    s.Text(u"");
    s.TextMode(mode);
    for (const auto* text : {u"a", u"b", u"c"}) s.SelText(text);
    int undone = 0;
    for (; s.CanUndo(); ++undone) s.Undo();
    EXPECT_EQ(undone, steps);
  }
}

TEST_F(SurfaceContract, EditFromANotificationIsRefused) {
  Put(u"|");
  int error = 0;
  s.OnChange([&] { error = ErrorOf([&] { s.SelText(u"encore"); }); });
  s.SelText(u"a");
  EXPECT_EQ(error, 5);
  EXPECT_EQ(Shown(), u"a|");
  s.OnChange([] { throw RuntimeError(ErrorNumber::Overflow); });
  EXPECT_EQ(ErrorOf([&] { s.SelText(u"b"); }), 6);
  s.OnChange({});
  s.SelText(u"c");
  EXPECT_EQ(Shown(), u"abc|");
}

TEST_F(SurfaceContract, WhatIsNoRtfIsPastedAsTextInTheFormatAround) {
  Put(u"^a|");
  clipboard.Set({u"texte", "pas du RTF"});
  s.SelBold(true);
  s.Paste();
  Select(u"^texte|");
  EXPECT_EQ(s.SelBold(), true);
}

TEST_F(SurfaceContract, PastesRtfBeforeHtmlBeforeTextInOneStep) {
  for (const auto& [rtf, pasted] : {std::pair("{\\rtf1 r\\par s}", u"ar\r\ns"), {"", u"a<h"}}) {
    Put(u"a^|");
    clipboard.Set({u"t", rtf, "<p>&lt;<b>h</b></p>"});
    s.Paste();
    EXPECT_EQ(s.Text(), pasted);
    EXPECT_EQ(s.UndoType(), UndoKind::Paste);
    s.Undo();
    EXPECT_EQ(s.Text(), u"a");
  }
  Put(u"un ^deux|");
  s.SelBold(true);
  s.Copy();
  EXPECT_NE(clipboard.Get().html->find("<b>deux</b>"), std::string::npos);
}

TEST_F(SurfaceContract, PastesTheTextAloneInTheFormatAroundInOneStep) {
  for (const auto& [content, pasted] : {std::pair(ClipboardContent{u"t\uFFFC\nu"}, u"at¶u"),
                                        {{{}, "{\\rtf1\\ul r\\par s}"}, u"ar¶s"},
                                        {{{}, {}, "<i>h</i>"}, u"ah"},
                                        {{u"", "{\\rtf1 r}"}, u"ab"}}) {
    Put(u"a^b|");
    s.SelBold(true);
    clipboard.Set(content);
    Press(u"Ctrl+Shift+V");
    EXPECT_EQ(s.Text(), ReplaceEvery(pasted, u"¶", u"\r\n"));
    surface.UserSelect(1, s.TextLength());
    EXPECT_TRUE(s.SelBold() == true && s.SelUnderline() == false && s.SelItalic() == false);
    s.Undo();
    EXPECT_EQ(s.Text(), u"ab");
  }
}

TEST_F(SurfaceContract, FailedLoadsAndSavesLeaveEverything) {
  Put(u"a^b|");
  s.SelBold(true);
  Changes();
  files.files[u"C:\\n.rtf"] = "du texte";
  EXPECT_EQ(ErrorOf([&] { s.LoadFile(u"C:\\n.rtf", FileType::Rtf); }), 5);
  EXPECT_EQ(ErrorOf([&] { s.LoadFile(u"C:\\absent.rtf", FileType::Rtf); }), 53);
  files.broken = true;
  EXPECT_EQ(ErrorOf([&] { s.SaveFile(u"C:\\n.rtf", FileType::Rtf); }), 75);
  EXPECT_EQ(Shown(), u"a^b|");
  EXPECT_EQ(s.SelBold(), true);
  EXPECT_TRUE(s.CanUndo());
  EXPECT_EQ(Changes(), 0);
}

// --- what the source says beyond the text, when that is edited

constexpr std::u16string_view kNote =
    u"{\\rtf1 a\\sect\\sectd\\cols2 bc\\par\\page{\\*\\bkmkstart k}d{\\*\\bkmkend k}{\\pict 01}}";
constexpr std::u16string_view kLink =
    u"{\\rtf1 a\\par\\page{\\field{\\*\\fldinst H}{\\fldrslt bc}}}";

class Kept : public SurfaceContract {
 protected:
  bool Holds(std::u16string_view source) {
    return s.TextRTF().find(source) != std::u16string::npos;
  }
};

TEST_F(Kept, BeginningsStayWhenTheTextBehindThemGoesAndCutNoRunOfUndo) {
  for (const auto& [note, selected, keys, left] : Rows16<4>(R"(
note | 3 4 | Delete | \sectd\cols2 c\par ¦ note | 3 5 | Delete | \sectd\cols2\par
note | 3 7 | Delete | \sectd\cols2\page{\*\bkmkstart k}d ¦ note | 1 4 | Delete | pard ac\par
note | 3 5 | x y | \sectd\cols2 xy\par ¦ note | 7 8 | Delete | \page{\*\bkmkend k}{\pict 01}\par }
note | 7 9 | Delete | \page\par } ¦ note | 4 5 | Delete | b\par
note | 3 3 | Delete Delete Delete | \cols2\page{\*\bkmkstart k}d
note | 8 8 | BackSpace BackSpace | \sectd\cols2 bc{\pict 01}
note | 7 8 | x x y | \page xxy ¦ link | 4 4 | x y | \fldrslt bxyc}}
)")) {
    s.TextRTF(note == u"note" ? kNote : kLink);
    const std::u16string before = s.TextRTF();
    surface.UserSelect(selected[0] - u'0', selected[2] - u'0');
    Press(keys);
    EXPECT_TRUE(Holds(left)) << ToUtf8(left) << ": " << ToUtf8(s.TextRTF());
    s.Undo();
    EXPECT_EQ(s.TextRTF(), before) << ToUtf8(left);
    EXPECT_FALSE(s.CanUndo());
  }
}

TEST_F(Kept, ABulletTakesThePlaceOfANumber) {
  s.TextRTF(u"{\\rtf1\\pard{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody}\\keepn a}");
  s.SelBullet(true);
  EXPECT_TRUE(!Holds(u"pnlvlbody") && Holds(u"pnlvlblt") && Holds(u"\\keepn"));
}

TEST_F(Kept, BeginningsAreNotTakenAlong) {
  s.TextRTF(kNote);
  surface.UserSelect(3, 4);
  EXPECT_EQ(s.SelRTF().find(u"cols2"), std::u16string::npos);
  s.Cut();
  s.Paste();
  EXPECT_EQ(s.Text(), u"a\r\nbc\r\nd\uFFFC");
  EXPECT_TRUE(Holds(u"\\sect\r\nb\\sectd\\cols2 c\\par"));
  s.TextRTF(kNote);
  surface.UserSelect(3, 4);
  surface.UserDrop(1, false);
  EXPECT_TRUE(Holds(u"ab\\sect\r\n\\sectd\\cols2 c"));
}

}  // namespace
}  // namespace lumenote
