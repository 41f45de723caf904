// Undo, clipboard and files, as every surface must do them.
#include "surface/SurfaceContract.h"

namespace lumenote {
namespace {

TEST_F(SurfaceContract, TextModeDecidesHowMuchIsKept) {
  Put(u"|");
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

}  // namespace
}  // namespace lumenote
