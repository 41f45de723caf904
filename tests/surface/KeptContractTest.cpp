// What the source says beyond the text, when that is edited.
#include "surface/SurfaceContract.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kNote =
    u"{\\rtf1 a\\sect\\sectd\\cols2 bc\\par\\page{\\*\\bkmkstart k}d{\\*\\bkmkend k}{\\pict 01}}";

TEST_F(SurfaceContract, BeginningsStayWhenTheTextBehindThemGoes) {
  const struct {
    Selection deleted;
    std::u16string_view put, left;
  } cases[] = {{{3, 4}, u"", u"\\sectd\\cols2 c\\par"},
               {{3, 5}, u"", u"\\sectd\\cols2\\par"},
               {{3, 7}, u"", u"\\sectd\\cols2\\page{\\*\\bkmkstart k}d"},
               {{1, 4}, u"", u"fs20 ac\\par"},
               {{3, 5}, u"xy", u"\\sectd\\cols2 xy\\par"},
               {{7, 8}, u"", u"\\page{\\*\\bkmkend k}{\\pict 01}\\par }"},
               {{7, 9}, u"", u"\\page\\par }"},
               {{4, 5}, u"", u"b\\par"}};
  for (const auto& c : cases) {
    s.TextRTF(kNote);
    const std::u16string before = s.TextRTF();
    surface.UserSelect(c.deleted.start, c.deleted.end);
    s.SelText(c.put);
    EXPECT_NE(s.TextRTF().find(c.left), std::u16string::npos)
        << &c - cases << ": " << testing::PrintToString(s.TextRTF());
    s.Undo();
    EXPECT_EQ(s.TextRTF(), before) << &c - cases;
  }
}

TEST_F(SurfaceContract, BeginningsThatStayDoNotCutRunsOfUndo) {
  const std::pair<Selection, std::function<void()>> cases[] = {
      {{3, 3}, [this] { Press(u"Delete Delete Delete"); }},
      {{8, 8}, [this] { Press(u"BackSpace BackSpace"); }},
      {{7, 8}, [this] {
         surface.UserType(u"xx");
         surface.UserType(u"y");
       }}};
  s.TextRTF(kNote);
  const std::u16string before = s.TextRTF();
  for (const auto& [selected, act] : cases) {
    surface.UserSelect(selected.start, selected.end);
    act();
    EXPECT_NE(s.TextRTF(), before);
    s.Undo();
    EXPECT_EQ(s.TextRTF(), before);
    EXPECT_FALSE(s.CanUndo());
  }
}

TEST_F(SurfaceContract, ABulletTakesThePlaceOfANumber) {
  s.TextRTF(u"{\\rtf1\\pard{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody}\\keepn a}");
  s.SelBullet(true);
  EXPECT_EQ(s.TextRTF().find(u"pnlvlbody"), std::u16string::npos);
  EXPECT_NE(s.TextRTF().find(u"pnlvlblt"), std::u16string::npos);
  EXPECT_NE(s.TextRTF().find(u"\\keepn"), std::u16string::npos);
}

TEST_F(SurfaceContract, TextTypedInALinkJoinsItWhateverItBegins) {
  s.TextRTF(u"{\\rtf1 a\\par\\page{\\field{\\*\\fldinst H}{\\fldrslt bc}}}");
  surface.UserSelect(4, 4);
  surface.UserType(u"xy");
  EXPECT_NE(s.TextRTF().find(u"\\fldrslt bxyc}}"), std::u16string::npos);
}

TEST_F(SurfaceContract, BeginningsAreNotTakenAlong) {
  s.TextRTF(kNote);
  const std::u16string before = s.TextRTF();
  surface.UserSelect(3, 4);
  EXPECT_EQ(s.SelRTF().find(u"cols2"), std::u16string::npos);
  s.Cut();
  s.Paste();
  EXPECT_EQ(s.Text(), u"a\r\nbc\r\nd\uFFFC");
  EXPECT_NE(s.TextRTF().find(u"\\sect\r\nb\\sectd\\cols2 c\\par"), std::u16string::npos);
  s.TextRTF(kNote);
  surface.UserSelect(3, 4);
  surface.UserDrop(1, true);
  s.Undo();
  EXPECT_EQ(s.TextRTF(), before);
  surface.UserSelect(3, 4);
  surface.UserDrop(1, false);
  EXPECT_NE(s.TextRTF().find(u"ab\\sect\r\n\\sectd\\cols2 c"), std::u16string::npos);
}

}  // namespace
}  // namespace lumenote
