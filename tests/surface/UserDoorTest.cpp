// What the user does: undo kinds, steps, drops, and what a view hears of it.
#include <gtest/gtest.h>

#include "base/Rows.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

/// The texts that undoing goes back through, the present one first, with the kind of each step.
std::u16string Steps(UserBench& bench) {
  std::u16string steps = bench.Shown();
  while (bench.surface.CanUndo()) {
    steps += u" <";
    steps += static_cast<char16_t>(u'0' + static_cast<int>(bench.surface.UndoType()));
    bench.surface.Undo();
    steps += u" " + bench.Shown();
  }
  return steps;
}

TEST(UserDoor, RunsOfTypingAndDeletingAreSteps) {
  for (const auto& [before, keys, steps] : Rows16<3>(R"(
| => a b c Space d => abc d| <1 | ¦ x^y|z => a b => xab|z <1 x^y|z ¦ ^a¶b|z => c d => cd|z <1 ^a¶b|z
| => a b Return c => ab¶c| <1 ab¶| <1 | ¦ | => a b Left Right c => abc| <1 ab| <1 |
abc| => BackSpace BackSpace => a| <2 abc| ¦ |abc => Delete Delete => |c <2 |abc
a^b|c => Delete => a|c <2 a^b|c ¦ | => a b BackSpace => a| <2 ab| <1 | ¦ | => Tab Space => ⇥ | <1 |
ab|c => BackSpace Delete => a| <2 ab|c ¦ | => a Ctrl+z Ctrl+y b => ab| <1 a| <1 |
a^b|c => Ctrl+x Ctrl+v Ctrl+v => abb|c <5 ab|c <5 a|c <4 a^b|c
)",
                                                     " => ")) {
    UserBench bench;
    bench.Put(before);
    bench.Press(keys);
    EXPECT_EQ(ToUtf8(Steps(bench)), ToUtf8(ReplaceEvery(steps, u"⇥", u"\t"))) << ToUtf8(keys);
  }
}

TEST(UserDoor, BreaksAndSavesEndARunOfTyping) {
  UserBench bench;
  bench.Put(u"|");
  bench.surface.UserType(u"ab\r\nc\nd");
  bench.surface.SaveFile(u"C:\\n.txt", FileType::Text);
  bench.surface.UserType(u"e");
  EXPECT_EQ(Steps(bench), u"ab¶c¶de| <1 ab¶c¶d| <1 ab¶c¶| <1 ab¶| <1 |");
}

TEST(UserDoor, DropKeepsFormats) {
  UserBench bench;
  bench.Put(u"a^bc|def");
  bench.surface.SelBold(true);
  bench.surface.UserDrop(5, false);
  EXPECT_EQ(bench.surface.SelBold(), true);
  bench.surface.UserDropContent({u"texte", "{\\rtf1\\b0\\i riche}"}, 1);
  EXPECT_EQ(bench.Shown(), u"a^riche|debcf");
  EXPECT_EQ(bench.surface.SelItalic(), true);
  EXPECT_EQ(bench.surface.UndoType(), UndoKind::DragDrop);
}

TEST(UserDoor, ImagesArePicturesWhereNothingIsRicher) {
  const std::string png("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\2\x58\0\0\1\x2C", 24);  // 600 x 300
  const std::string jpeg = "\xFF\xD8\xFF\xE0";
  const std::pair<ClipboardContent, const char16_t*> pastes[] = {
      {{.images = {png, "GIF89a", jpeg}}, u"a\uFFFC\uFFFC|b <5 a|b"},
      {{.text = u"t", .images = {png}}, u"at|b <5 a|b"},
      {{.rtf = "{\\rtf1 t}", .images = {png}}, u"at|b <5 a|b"},
      {{.html = "<b>t</b><img>", .images = {png}}, u"at|b <5 a|b"},
      {{.text = u"x.org/i", .html = "<img src=x.org/i alt=t> ", .images = {png}},
       u"a\uFFFC|b <5 a|b"},
      {{.images = {"BM"}}, u"a|b"}};
  for (const auto& [content, steps] : pastes) {
    UserBench bench;
    bench.Put(u"a|b");
    bench.clipboard.Set(content);
    EXPECT_TRUE(bench.surface.CanPaste());
    bench.surface.Paste();
    EXPECT_EQ(ToUtf8(Steps(bench)), ToUtf8(steps));
  }
  UserBench bench;
  bench.surface.UserDropContent({.images = {png}}, 0);
  EXPECT_NE(bench.surface.TextRTF().find(u"\\pngblip\\picwgoal9000\\pichgoal4500"),
            std::u16string::npos);
  EXPECT_EQ(bench.surface.UndoType(), UndoKind::DragDrop);
  bench.surface.Copy();
  EXPECT_EQ(bench.clipboard.Get().images, std::vector{png});
  bench.clipboard.Set({.images = {png}, .imageNames = u"i.png"});
  bench.Press(u"Ctrl+Shift+v");
  EXPECT_EQ(bench.Shown(), u"i.png|");
}

TEST(UserDoor, WhatIsPastedBringsItsTablesAndUndoTakesThemBack) {
  UserBench from, to;
  from.surface.TextRTF(uR"({\rtf1{\fonttbl{\f7 B;}}a{\footnote\f7 n}})");
  from.surface.UserSelect(0, 2);
  from.surface.Copy();
  to.clipboard = from.clipboard;
  to.Put(u"x^y|");
  const std::u16string before = to.surface.TextRTF();
  to.surface.Paste();
  const std::u16string once = to.surface.TextRTF();
  EXPECT_NE(once.find(u"{\\f7\\fnil\\fcharset0 B;}"), once.npos) << ToUtf8(once);
  to.surface.UserSelect(1, 3);
  to.surface.Copy();
  for (int times = 0; times < 100; ++times) to.surface.Paste();
  EXPECT_TRUE(to.surface.TextRTF().starts_with(once.substr(0, once.find(u"\\viewkind4"))));
  while (to.surface.CanUndo()) to.surface.Undo();
  EXPECT_EQ(to.surface.TextRTF(), before);
}

TEST(UserDoor, ToggleKeys) {
  UserBench bench;
  bench.Put(u"un ^de|ux");
  bench.Press(u"Ctrl+b");
  bench.Select(u"^un deux|");
  bench.Press(u"Ctrl+b Ctrl+i Ctrl+u");
  EXPECT_EQ(bench.surface.SelBold(), true);  // mixed turns on
  EXPECT_EQ(bench.surface.SelItalic(), true);
  EXPECT_EQ(bench.surface.SelUnderline(), true);
  bench.Press(u"Ctrl+b");
  EXPECT_EQ(bench.surface.SelBold(), false);
}

TEST(UserDoor, ParagraphKeys) {
  struct Row {
    std::u16string_view keys, words;
  };
  constexpr Row kRows[] = {{u"Ctrl+r", u"\\qr"},
                           {u"Ctrl+e", u"\\qc"},
                           {u"Ctrl+j", u"\\qj"},
                           {u"Ctrl+j Ctrl+l", u"\\ql"},
                           {u"Ctrl+5", u"\\sl360\\slmult1"},
                           {u"Ctrl+(", u"\\sl360\\slmult1"},
                           {u"Ctrl+Shift+2", u"\\sl480\\slmult1"},
                           {u"Ctrl+é", u"\\sl480\\slmult1"},
                           {u"Ctrl+2 Ctrl+&", u"\\sl240\\slmult1"}};
  for (const auto& [keys, words] : kRows) {
    UserBench bench;
    bench.Put(u"un|");
    bench.Press(keys);
    EXPECT_NE(bench.surface.TextRTF().find(words), std::u16string::npos) << ToUtf8(keys);
    bench.surface.Undo();
    EXPECT_EQ(bench.Shown(), u"un|");
  }
}

TEST(UserDoor, BackSpaceTakesTheBulletOffFirst) {
  UserBench bench;
  bench.Put(u"a¶|b");
  bench.surface.SelBullet(true);
  bench.Press(u"BackSpace");
  EXPECT_EQ(bench.Shown(), u"a¶|b");
  EXPECT_EQ(bench.surface.SelBullet(), false);
  EXPECT_EQ(bench.surface.UndoType(), UndoKind::Delete);
  bench.Press(u"BackSpace");
  EXPECT_EQ(bench.Shown(), u"a|b");
}

TEST(UserDoor, ReturnKeepsBothFormats) {
  UserBench bench;
  bench.Put(u"|");
  bench.surface.SelBold(true);
  bench.surface.SelAlignment(2);
  bench.surface.UserType(u"a\r\nb");
  bench.Select(u"^a¶b|");
  EXPECT_EQ(bench.surface.SelBold(), true);
  EXPECT_EQ(bench.surface.SelAlignment(), 2);
}

}  // namespace
}  // namespace lumenote
