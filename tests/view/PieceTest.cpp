// Pieces of the fixed layouter: breaks, edges, boxes in a line, rows of cells.
#include <gtest/gtest.h>

#include "document/kept/Kept.h"
#include "view/Window.h"

namespace lumenote {
namespace {

TEST(FixedBreaker, Wraps) {
  struct Row {
    std::u16string_view text;
    int width;  // in characters
    std::u16string_view lines;
  };
  const Row rows[] = {{u"un deux trois", 7, u"un deux |trois"},
                      {u"un    deux", 4, u"un    |deux"},
                      {u"porte-avions", 8, u"porte-|avions"},
                      {u"abcdefgh", 3, u"abc|def|gh"},
                      {u"a abcdefgh", 3, u"a |abc|def|gh"},
                      {u"a𝄞𝄞b", 2, u"a𝄞|𝄞b"},
                      {u"𝄞𝄞𝄞", 0, u"𝄞𝄞|𝄞"},
                      {u"a\tb", 8, u"a\t|b"},
                      {u"a\vb\v", 9, u"a\v|b\v|"},
                      {u"", 5, u""}};
  for (const Row& row : rows) {
    Document document;
    document.Replace(0, 0, PlainFragment(row.text, 0, 0));
    FixedBreaker breaker(row.width * 100.0);
    std::u16string lines(row.text);
    std::vector<Position> starts = breaker.Break(document, 0, document.Length());
    for (auto at = starts.rbegin(); at != starts.rend(); ++at)
      lines.insert(static_cast<std::size_t>(*at), 1, u'|');
    EXPECT_EQ(ToUtf8(lines), ToUtf8(row.lines));
  }
}

TEST(FixedBreaker, IndentsNarrowTheLinesAndShiftX) {
  Document document;
  ParaFormat format;
  format.firstIndent = 300;
  format.hangingIndent = -150;
  format.rightIndent = 450;
  Fragment text = PlainFragment(u"abcdefghij", 0, 0);
  text.mark = FinalMark{0, document.Formats().paragraphs.Intern(format)};
  document.Replace(0, 0, text);
  FixedBreaker breaker(1250);
  EXPECT_EQ(breaker.Break(document, 0, 10), (std::vector<Position>{5}));
  EXPECT_FLOAT_EQ(breaker.XOf(document, 0, 3), 40);
  EXPECT_EQ(breaker.XOf(document, 5, 5), 10);
  EXPECT_EQ(breaker.AtX(document, 0, 5, 23), 0);
  EXPECT_EQ(breaker.AtX(document, 0, 5, 24), 1);
  EXPECT_EQ(breaker.AtX(document, 5, 10, 9999), 10);
}

TEST(Pieces, GiveABoxItsRoomInTheLine) {
  Window window({120, 200});
  window.layouter.boxOf = [](const Kept&) { return PixelSize{50, 60}; };
  window.surface.TextRTF(u"{\\rtf1 ab{\\pict\\pngblip 00}cd{\\pict\\pngblip 00}ef}");
  window.view.Settle();
  const Piece& piece = window.pane.Cache().At(0);
  ASSERT_EQ(piece.boxes.size(), 2u);
  EXPECT_EQ(piece.boxes[0].index, 2);
  EXPECT_EQ(piece.boxes[0].size, (PixelSize{50, 60}));
  ASSERT_EQ(piece.lines.size(), 2u) << "the second box does not fit";
  EXPECT_EQ(piece.lines[0].baseline, 60);
  EXPECT_EQ(piece.XOf(3), 70);
  EXPECT_EQ(window.pane.CharacterAt({45, 30}), 2);
  EXPECT_EQ(window.pane.PositionAt({50, 30}), 3) << "behind its middle";
}

struct RowsTest : testing::Test {
  RowsTest() {
    window.layouter.cellsOf = [](const Kept&) { return std::vector<double>{60, 150, 200}; };
    window.surface.TextRTF(
        u"{\\rtf1 avant\\par\\trowd\\cellx900\\cellx2250\\cellx3000\\intbl "
        u"un deux trois\\cell quatre cinq\\cell six\\cell\\row apr\\'e8s}");
    window.view.Settle();
  }
  const Piece& Row() { return window.pane.Cache().At(8); }

  Window window{{300, 200}};
};

TEST_F(RowsTest, LieBesideEachOther) {
  ASSERT_EQ(Row().cells.size(), 3u);
  EXPECT_TRUE(Row().opens && Row().closes);
  EXPECT_EQ(Row().lines.size(), 3u + 2 + 1);
  EXPECT_EQ(Row().height, 3 * 25);
  struct Place {
    std::u16string_view word;
    double left, top;
  };
  for (const Place& place :
       {Place{u"trois", 0, 75}, Place{u"quatre", 60, 25}, Place{u"cinq", 60, 50},
        Place{u"six", 150, 25}, Place{u"apr", 0, 100}}) {
    const auto at = static_cast<Position>(window.surface.Text().find(place.word));
    EXPECT_EQ(window.pane.CaretAt(at)->left, place.left) << ToUtf8(place.word);
    EXPECT_EQ(window.pane.LineAt(at)->top, place.top) << ToUtf8(place.word);
    EXPECT_EQ(window.pane.PositionAt({place.left + 1, place.top + 12}), at);
    EXPECT_EQ(window.surface.Lines().LineAt(at).start, at);
    EXPECT_EQ(window.breaker.XOf(window.surface.Content(), at, at + 1), place.left + 10);
  }
}

TEST_F(RowsTest, ArePaintedAsAWhole) {
  for (const char16_t* word : {u"cinq", u"six", u"deux"}) {
    const auto at = static_cast<Position>(window.surface.Text().find(word));
    window.surface.UserSelect(at, at + 2);
    window.view.Type(u"xxxx xxxx");
    window.view.Settle();
    EXPECT_TRUE(window.screen == window.Fresh());
    EXPECT_EQ(window.view.Differences(), std::vector<std::string>{});
  }
  window.view.ScrollBy(30);
  EXPECT_TRUE(window.screen == window.Fresh());
}

}  // namespace
}  // namespace lumenote
