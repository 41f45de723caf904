// The caret keys and the editing keys, as data.
#include <gtest/gtest.h>

#include "base/DataFile.h"
#include "base/Rows.h"
#include "surface/UserBench.h"
#include "surface/keys/SpelledWords.h"

namespace lumenote {
namespace {

TEST(CaretKeys, MoveAndEdit) {
  for (const auto& [before, keys, after] : Rows16<3>(DataFile("keys.rows"), " => ")) {
    UserBench bench;
    bench.Put(before);
    EXPECT_TRUE(bench.Press(keys)) << ToUtf8(keys);
    EXPECT_EQ(bench.Shown(), ReplaceEvery(after, u"⇥", u"\t")) << ToUtf8(before + keys);
  }
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

TEST(SpelledWords, AreThoseThatAFrenchDictionaryMayHave) {
  const std::pair<std::u16string_view, std::u16string_view> rows[] = {
      {u"L'arbre aujourd\\'92hui porte-greffe", u"L'arbre|aujourd\u2019hui|porte-greffe"},
      {u"'un' -deux- a 2n x2 12 \\'c9t\\'e9, {\\i Orchis}", u"un|deux|\u00C9t\u00E9"},
      {u"{\\lang1033 color }{\\lang3084 couleur }{\\v vu}\\par deux", u"couleur|deux"},
      {u"Huds., 1762 ; alt. 420 ; fin.\\par Plante. Une.", u"fin|Plante|Une"},
      {u"mot \\u945 ?\\u946 ? \\u28450 ?\\u23383 ? \\u339 ?uf", u"mot|\u0153uf"},
      {u"un_deux trois\\u769 ? quatre", u"quatre"}};
  for (const auto& [rtf, words] : rows) {
    UserBench bench;
    bench.surface.TextRTF(u"{\\rtf1 " + std::u16string(rtf) + u"}");
    const Document& note = bench.surface.Content();
    std::u16string found;
    for (const Selection& word : SpelledWords(note, 0, note.Length()))
      found += (found.empty() ? u"" : u"|") + note.Text(word.start, word.end);
    EXPECT_EQ(found, words);
  }
}

}  // namespace
}  // namespace lumenote
