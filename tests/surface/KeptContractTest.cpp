// What the source says beyond the text, when that is edited.
#include "base/Rows.h"
#include "surface/SurfaceContract.h"

namespace lumenote {
namespace {

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
note | 3 7 | Delete | \sectd\cols2\page{\*\bkmkstart k}d ¦ note | 1 4 | Delete | fs20 ac\par
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
