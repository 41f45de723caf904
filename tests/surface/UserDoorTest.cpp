// What the user does: undo kinds, steps, drops, and what a view hears of it.
#include <gtest/gtest.h>

#include "surface/UserBench.h"
#include "surface/keys/Words.h"

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
  struct Row {
    std::u16string_view before, keys, steps;
  };
  const Row rows[] = {{u"|", u"a b c Space d", u"abc d| <1 |"},
                      {u"x^y|z", u"a b", u"xab|z <1 x^y|z"},
                      {u"^a¶b|z", u"c d", u"cd|z <1 ^a¶b|z"},
                      {u"|", u"a b Return c", u"ab¶c| <1 ab¶| <1 |"},
                      {u"|", u"a b Left Right c", u"abc| <1 ab| <1 |"},
                      {u"abc|", u"BackSpace BackSpace", u"a| <2 abc|"},
                      {u"|abc", u"Delete Delete", u"|c <2 |abc"},
                      {u"a^b|c", u"Delete", u"a|c <2 a^b|c"},
                      {u"|", u"a b BackSpace", u"a| <2 ab| <1 |"},
                      {u"ab|c", u"BackSpace Delete", u"a| <2 ab|c"},
                      {u"|", u"Tab Space", u"\t | <1 |"},
                      {u"|", u"a Ctrl+z Ctrl+y b", u"ab| <1 a| <1 |"},
                      {u"a^b|c", u"Ctrl+x Ctrl+v Ctrl+v", u"abb|c <5 ab|c <5 a|c <4 a^b|c"}};
  for (const Row& row : rows) {
    UserBench bench;
    bench.Put(row.before);
    bench.Press(row.keys);
    EXPECT_EQ(ToUtf8(Steps(bench)), ToUtf8(row.steps)) << ToUtf8(row.keys);
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

TEST(UserDoor, ViewHearsOfEachActOnce) {
  UserBench bench;
  bench.Put(u"ab^cd|ef");
  bench.surface.UserType(u"x");
  EXPECT_EQ(bench.view.changes, (std::vector<DocumentChange>{{2, 2, 1}}));
  EXPECT_EQ(bench.view.selections, 1);
  EXPECT_GE(bench.view.reveals, 1);
  bench.surface.RightMargin(900);
  EXPECT_EQ(bench.view.widths, 1);
  const std::size_t before = bench.view.changes.size();
  bench.surface.UserSelect(3, 3);
  EXPECT_EQ(bench.view.changes.size(), before);
}

TEST(UserDoor, DoubleClickTakesAWord) {
  UserBench bench;
  bench.Put(u"un l'été, là¶|");
  const Document& document = bench.surface.Content();
  struct Row {
    Position at;
    Selection word;
  };
  for (const auto& [at, word] :
       {Row{1, {0, 2}}, Row{2, {2, 3}}, Row{6, {5, 8}}, Row{12, {10, 12}}, Row{14, {14, 14}}})
    EXPECT_EQ(WordAt(document, at), word) << at;
}

}  // namespace
}  // namespace lumenote
