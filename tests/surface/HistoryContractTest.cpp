// Undo, clipboard and files, as every surface must do them.
#include "surface/SurfaceContract.h"

namespace lumenote {
namespace {

TEST_P(SurfaceContract, KindsOfTheProgramsCommands) {
  struct Row {
    std::function<void()> act;
    UndoKind kind;
    std::u16string_view after;
  };
  clipboard.Set({u"x\ny", std::nullopt});
  const Row rows[] = {{[&] { s.SelText(u"z"); }, UndoKind::Unknown, u"az|c"},
                      {[&] { s.SelRTF(u"{\\rtf1 z\\par}"); }, UndoKind::Unknown, u"az¶|c"},
                      {[&] { s.SelRTF(u"pas du RTF"); }, UndoKind::Unknown, u"apas du RTF|c"},
                      {[&] { s.SelBold(true); }, UndoKind::Unknown, u"a^b|c"},
                      {[&] { s.Clear(); }, UndoKind::Delete, u"a|c"},
                      {[&] { s.Paste(); }, UndoKind::Paste, u"ax¶y|c"},
                      {[&] { s.Cut(); }, UndoKind::Cut, u"a|c"}};
  for (const Row& row : rows) {
    Put(s, u"a^b|c");
    row.act();
    EXPECT_EQ(Marked(s), row.after);
    EXPECT_EQ(s.UndoType(), row.kind);
    s.Undo();
    EXPECT_EQ(Marked(s), u"a^b|c");
    EXPECT_FALSE(s.CanUndo());
    EXPECT_EQ(s.RedoType(), row.kind);
    s.Redo();
    EXPECT_EQ(Marked(s), row.after);
    EXPECT_FALSE(s.CanRedo());
  }
}

TEST_P(SurfaceContract, UndoAndRedoNotifyAndStopAtTheEnds) {
  Put(s, u"|");
  s.SelText(u"a");
  Changes();
  s.Redo();
  EXPECT_EQ(Changes(), 0);
  s.Undo();
  EXPECT_EQ(Changes(), 1);
  s.Undo();
  EXPECT_EQ(Changes(), 0);
  s.SelText(u"b");
  EXPECT_FALSE(s.CanRedo());
}

TEST_P(SurfaceContract, TextModeDecidesHowMuchIsKept) {
  Put(s, u"|");
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

TEST_P(SurfaceContract, GroupIsOneStep) {
  Put(s, u"un |¶deux");
  {
    EditGroup outer(s);
    s.SelText(u"et");
    EditGroup inner(s);
    s.SelAlignment(1);
    s.SelStart(0);
    s.SelLength(2);
    s.SelBold(true);
  }
  s.Undo();
  EXPECT_EQ(Marked(s), u"un |¶deux");
  EXPECT_EQ(s.SelAlignment(), 0);
  EXPECT_FALSE(s.CanUndo());
  s.Redo();
  EXPECT_EQ(Marked(s), u"^un| et¶deux");
  EXPECT_EQ(s.SelBold(), true);
}

TEST_P(SurfaceContract, EditFromANotificationIsRefused) {
  Put(s, u"|");
  int error = 0;
  s.OnChange([&] { error = ErrorOf([&] { s.SelText(u"encore"); }); });
  s.SelText(u"a");
  EXPECT_EQ(error, 5);
  EXPECT_EQ(Marked(s), u"a|");
  s.OnChange([] { throw RuntimeError(ErrorNumber::Overflow); });
  EXPECT_EQ(ErrorOf([&] { s.SelText(u"b"); }), 6);
  s.OnChange({});
  s.SelText(u"c");
  EXPECT_EQ(Marked(s), u"abc|");
}

TEST_P(SurfaceContract, CopyAndPasteKeepFormats) {
  Put(s, u"un ^deux| trois");
  s.SelItalic(true);
  s.Copy();
  EXPECT_EQ(clipboard.Get().text, u"deux");
  SelectAs(s, u"|un deux trois");
  s.Paste();
  SelectAs(s, u"^deux|un deux trois");
  EXPECT_EQ(s.SelItalic(), true);
  s.SelStart(0);
  s.Copy();
  s.Cut();
  EXPECT_EQ(clipboard.Get().text, u"deux");
  clipboard.Clear();
  EXPECT_FALSE(s.CanPaste());
  s.Paste();
  EXPECT_EQ(Marked(s), u"|deuxun deux trois");
}

TEST_P(SurfaceContract, PastePrefersRtfThenTextInTheFormatAround) {
  Put(s, u"a|");
  clipboard.Set({u"texte", "{\\rtf1 riche}"});
  s.Paste();
  EXPECT_EQ(Marked(s), u"ariche|");
  clipboard.Set({u"texte", "pas du RTF"});
  SelectAs(s, u"^ariche|");
  s.SelBold(true);
  s.Paste();
  SelectAs(s, u"^texte|");
  EXPECT_EQ(s.SelBold(), true);
}

TEST_P(SurfaceContract, FilesInBothForms) {
  Put(s, u"Été ^à 5 €| → fin¶");
  s.SelBold(true);
  s.SaveFile(u"C:\\n.txt", FileType::Text);
  s.SaveFile(u"C:\\n.rtf", FileType::Rtf);
  EXPECT_EQ(files.files[u"C:\\n.txt"], "\xC9t\xE9 \xE0 5 \x80 ? fin\r\n");
  s.LoadFile(u"C:\\n.rtf", FileType::Rtf);
  SelectAs(s, u"Été ^à 5 €| → fin¶");
  EXPECT_EQ(s.Text(), u"Été à 5 € → fin\r\n");
  EXPECT_EQ(s.SelBold(), true);
  s.LoadFile(u"C:\\n.txt", FileType::Text);
  EXPECT_EQ(s.Text(), u"Été à 5 € ? fin\r\n");
}

TEST_P(SurfaceContract, PlainTextFilesWithAByteOrderMark) {
  const std::pair<std::string, std::u16string_view> rows[] = {
      {"\xEF\xBB\xBFn\xC3\xA9\n", u"né\r\n"},
      {std::string("\xFF\xFEn\0\xE9\0", 6), u"né"},
      {std::string("\xFE\xFF\0n\0\xE9\0", 7), u"né"},
      {"n\xE9\r", u"né\r\n"}};
  for (const auto& [bytes, text] : rows) {
    files.files[u"C:\\n.txt"] = bytes;
    s.LoadFile(u"C:\\n.txt", FileType::Text);
    EXPECT_EQ(s.Text(), text);
  }
}

TEST_P(SurfaceContract, FailedLoadsAndSavesLeaveEverything) {
  Put(s, u"a^b|");
  s.SelBold(true);
  Changes();
  files.files[u"C:\\n.rtf"] = "du texte";
  EXPECT_EQ(ErrorOf([&] { s.LoadFile(u"C:\\n.rtf", FileType::Rtf); }), 5);
  EXPECT_EQ(ErrorOf([&] { s.LoadFile(u"C:\\absent.rtf", FileType::Rtf); }), 53);
  files.broken = true;
  EXPECT_EQ(ErrorOf([&] { s.SaveFile(u"C:\\n.rtf", FileType::Rtf); }), 75);
  EXPECT_EQ(Marked(s), u"a^b|");
  EXPECT_EQ(s.SelBold(), true);
  EXPECT_TRUE(s.CanUndo());
  EXPECT_EQ(Changes(), 0);
}

TEST_P(SurfaceContract, RtfTravelsOneByteAUnit) {
  s.TextRTF(u"{\\RTF1\\ansi \u00E9\\'e0 \u20AC}");
  EXPECT_EQ(s.Text(), u"éà €");
  const std::u16string rtf = s.TextRTF();
  EXPECT_EQ(std::count_if(rtf.begin(), rtf.end(), [](char16_t c) { return c > 0xFF; }), 0);
  s.TextRTF(rtf);
  EXPECT_EQ(s.Text(), u"éà €");
  EXPECT_EQ(s.TextRTF(), rtf);
}

}  // namespace
}  // namespace lumenote
