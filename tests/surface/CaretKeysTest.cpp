// The caret keys and the editing keys, as data.
#include <gtest/gtest.h>

#include "surface/UserBench.h"

namespace lumenote {
namespace {

/// The note before, the keys (separated by blanks) and the note after.
using KeyRow = std::u16string_view;
constexpr KeyRow kArrow = u" > ";

void Check(KeyRow row) {
  const std::size_t keys = row.find(kArrow) + kArrow.size();
  const std::size_t after = row.find(kArrow, keys) + kArrow.size();
  UserBench bench;
  bench.Put(row.substr(0, keys - kArrow.size()));
  EXPECT_TRUE(bench.Press(row.substr(keys, after - kArrow.size() - keys))) << ToUtf8(row);
  EXPECT_EQ(ToUtf8(bench.Shown()), ToUtf8(row.substr(after))) << ToUtf8(row);
}

TEST(CaretKeys, MoveAndEdit) {
  static constexpr KeyRow kRows[] = {
      u"ab|c > Left > a|bc", u"|abc > Left > |abc", u"a¶|b > Left > a|¶b", u"𝄞|b > Left > |𝄞b",
      u"a^b|c > Left > a|bc", u"a|b^c > Right > ab|c", u"a|¶b > Right > a¶|b",
      u"abc| > Right > abc|", u"a|𝄞 > Shift+Right > a^𝄞|",
      u"ab|¶c > Shift+Left Shift+Right Shift+Right > ab^¶|c",
      u"a^b|c > Shift+Left Shift+Left > |a^bc",
      // Words.
      u"|un été, là > Ctrl+Right Ctrl+Right > un été|, là",
      u"un |été, là > Ctrl+Right Ctrl+Right > un été, |là",
      u"|l'arbre d’or > Ctrl+Right > l'|arbre d’or",
      u"l'arbre |d’or > Ctrl+Right Ctrl+Right > l'arbre d’or|", u"l'arbre| > Ctrl+Left > l'|arbre",
      u"l'|arbre > Ctrl+Left > |l'arbre", u"un  deux| > Ctrl+Left Ctrl+Left > |un  deux",
      u"un|¶deux > Ctrl+Right > un¶|deux", u"un¶|deux > Ctrl+Left > un|¶deux",
      u"un¶  |deux > Ctrl+Left > un¶|  deux",
      u"un |deux trois > Ctrl+Shift+Right > un ^deux |trois", u"| > Ctrl+Left Ctrl+Right > |",
      // Lines wrap behind fifteen characters.
      u"un deux trois quatre ci|nq > Home > un deux trois |quatre cinq",
      u"un de|ux trois quatre > End > un deux trois| quatre",
      u"un de|ux¶trois > End > un deux|¶trois", u"un↓de|ux > Home > un↓|deux",
      u"u|n↓deux > End > un|↓deux", u"un d|eux¶trois > Shift+End > un d^eux|¶trois",
      u"un¶de|ux > Ctrl+Home > |un¶deux", u"u|n¶deux > Ctrl+End > un¶deux|",
      u"u|n¶deux > Ctrl+Shift+End > u^n¶deux|",
      // Pages have three lines.
      u"un deux tr|ois quatre > Down > un deux trois quatre|",
      u"abcdef|¶gh¶ijklmno > Down > abcdef¶gh|¶ijklmno",
      u"abcdef|¶gh¶ijklmno > Down Down > abcdef¶gh¶ijklmn|o",
      u"abcdef|¶gh¶ijklmno > Down Left Down > abcdef¶gh¶i|jklmno",
      u"abcdef|¶gh¶ijklmno > Down Down Up Up > abcdef|¶gh¶ijklmno", u"ab¶|¶cd > Up > |ab¶¶cd",
      u"a|b¶cd > Up > a|b¶cd", u"ab¶c|d > Down > ab¶c|d", u"ab¶| > Up > |ab¶",
      u"ab|¶cde > Shift+Down > ab^¶cd|e", u"a𝄞b|¶𝄞𝄞 > Down > a𝄞b¶𝄞𝄞|",
      u"a|¶b¶c¶d¶e¶f > PageDown > a¶b¶c¶d|¶e¶f", u"a¶b¶c¶d¶e|¶f > PageUp > a¶b|¶c¶d¶e¶f",
      u"a¶b|¶c > PageUp > a|¶b¶c", u"a¶b|¶c > Shift+PageDown > a¶b^¶c|",
      u"ab¶c|d¶e > Ctrl+Up > ab¶|cd¶e", u"ab¶|cd¶e > Ctrl+Up > |ab¶cd¶e",
      u"ab¶c|d¶e > Ctrl+Down Ctrl+Down > ab¶cd¶e|",
      // Editing.
      u"a¶|b > BackSpace > a|b", u"a𝄞|b > Shift+BackSpace > a|b", u"|ab > BackSpace > |ab",
      u"a|¶b > Delete > a|b", u"a|𝄞b > Delete > a|b", u"ab| > Delete > ab|",
      u"un deux| trois > Ctrl+BackSpace > un | trois", u"un |deux trois > Ctrl+Delete > un |trois",
      u"u^n d|eux > Ctrl+Delete > u|eux", u"a^b|c > Shift+Return > a↓|c",
      u"a|b > Tab Space x Shift+y > a\t xY|b", u"a|¶b > Ctrl+a > ^a¶b|",
      u"a^b|c > Ctrl+Insert Right Shift+Insert > abb|c", u"a^b|c > Shift+Delete Ctrl+z > a^b|c",
      u"ab| > BackSpace Ctrl+z Ctrl+Shift+z > a|"};
  for (const KeyRow row : kRows) Check(row);
}

// The breaker's lines would have fifteen characters; the view's have four.
TEST(CaretKeys, FollowTheLinesThatAreShown) {
  UserBench bench;
  bench.Put(u"aaaabbbbccccdd|ddeeee");
  bench.view.shownLine = [](Position at) {
    const Position start = std::min(at, 16) / 4 * 4;
    return Line{start, start + 4, start < 16 ? start + 4 : -1};
  };
  EXPECT_TRUE(bench.Press(u"Up"));
  EXPECT_EQ(bench.Shown(), u"aaaabbbbcc|ccddddeeee");
  EXPECT_TRUE(bench.Press(u"PageDown"));
  EXPECT_EQ(bench.Shown(), u"aaaabbbbccccddddee|ee");
  EXPECT_TRUE(bench.Press(u"PageUp Shift+Home"));
  EXPECT_EQ(bench.Shown(), u"aaaa|bb^bbccccddddeeee");
}

TEST(Keys, OthersAreTheWindowsToUse) {
  UserBench bench;
  bench.Put(u"a^b|c");
  for (const auto* key : {u"Escape", u"F5", u"Alt+Left", u"Ctrl+Return", u"Ctrl+PageUp", u"Ctrl+q"})
    EXPECT_FALSE(bench.Press(key));
  EXPECT_EQ(bench.Shown(), u"a^b|c");
  EXPECT_EQ(bench.view.reveals, 0);
}

TEST(Keys, NamesAreRead) {
  EXPECT_EQ(ParseKey(u"Ctrl+Shift+Alt+é"),
            (KeyStroke{.character = u'é', .shift = true, .control = true, .alt = true}));
  EXPECT_EQ(ParseKey(u"Ctrl++"), (KeyStroke{.character = u'+', .control = true}));
  EXPECT_EQ(ParseKey(u"F12"), (KeyStroke{.name = KeyName::Function, .character = 12}));
  for (const auto* none : {u"F25", u"F05", u"Delette", u"Ctrl+", u""})
    EXPECT_FALSE(ParseKey(none)) << ToUtf8(none);
}

}  // namespace
}  // namespace lumenote
