// Pieces of the fixed layouter: breaks, edges, boxes in a line, rows of cells.
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

#include "base/Rows.h"
#include "view/LayoutContract.h"
#include "view/Window.h"
#include "view/backdrop/Backdrop.h"

namespace lumenote {

std::unique_ptr<TextLayouter> MakeLayouter() { return std::make_unique<FixedLayouter>(); }
bool LayouterAligns() { return false; }

namespace {

using namespace std::string_literals;

/// The beginning of an image of 600 x 300 pixels.
const std::string kPngHead("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\2\x58\0\0\1\x2C", 24);

TEST(FixedBreaker, Wraps) {
  for (const auto& [lines, width] : Rows16<2>(R"(
un deux |trois => 7 ¦ un    |deux => 4 ¦ porte-|avions => 8 ¦ abc|def|gh => 3 ¦ a |abc|def|gh => 3
a𝄞|𝄞b => 2 ¦ 𝄞𝄞|𝄞 => 0 ¦ a⇥|b => 8 ¦ a↓|b↓| => 9 ¦ "" => 5
)",
                                              " => ")) {  // in characters
    Document document;
    std::u16string broken = ReplaceEvery(ReplaceEvery(lines, u"⇥", u"\t"), u"↓", u"\v");
    document.Replace(0, 0, PlainFragment(ReplaceEvery(broken, u"|", u""), 0, 0));
    FixedBreaker breaker((width[0] - u'0') * 100.0);
    std::u16string shown = document.Text(0, document.Length());
    std::vector<Position> starts = breaker.Break(document, 0, document.Length());
    for (auto at = starts.rbegin(); at != starts.rend(); ++at)
      shown.insert(static_cast<std::size_t>(*at), 1, u'|');
    EXPECT_EQ(ToUtf8(shown), ToUtf8(broken));
  }
}

TEST(FixedBreaker, IndentsNarrowTheLinesAndShiftX) {
  Document document;
  Fragment text = PlainFragment(u"abcdefghij", 0, 0);
  text.mark = FinalMark{0, document.Formats().paragraphs.Intern(
                               {.firstIndent = 300, .hangingIndent = -150, .rightIndent = 450})};
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
  const std::u16string picture = u"{\\pict\\pngblip\\picwgoal500\\pichgoal600 00}";
  window.surface.TextRTF(u"{\\rtf1 ab" + picture + u"cd" + picture + u"ef}");
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

TEST(Pieces, OfAnImageAreAsWideAsTheTextAtMost) {
  Window window({120, 200});
  window.surface.UserDropContent({.images = {kPngHead}}, 0);
  window.view.Settle();
  EXPECT_NE(window.surface.TextRTF().find(u"\\picwgoal1200\\"), std::u16string::npos);
  EXPECT_EQ(window.pane.Cache().At(0).boxes.at(0).size.width, 120);
  const std::u16string before = window.surface.TextRTF();
  EXPECT_THROW(window.surface.UserDropContent({.imagesTooLarge = true}, 0), RuntimeError);
  EXPECT_EQ(window.surface.TextRTF(), before);
}

struct RowsTest : testing::Test {
  RowsTest() {
    window.surface.TextRTF(
        u"{\\rtf1 avant\\par\\trowd\\cellx600\\cellx1500\\cellx2000\\intbl "
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
  EXPECT_EQ(Row().height, 3 * 25 + 3);
  const std::tuple<const char16_t*, double, double> places[] = {{u"trois", 5, 75},
                                                                {u"quatre", 65, 25},
                                                                {u"cinq", 65, 50},
                                                                {u"six", 155, 25},
                                                                {u"apr", 0, 103}};
  for (const auto& [word, left, top] : places) {
    const auto at = static_cast<Position>(window.surface.Text().find(word));
    EXPECT_EQ(window.pane.CaretAt(at)->left, left) << ToUtf8(word);
    EXPECT_EQ(window.pane.LineAt(at)->top, top) << ToUtf8(word);
    EXPECT_EQ(window.pane.PositionAt({left + 1, top + 12}), at);
    const Line line = window.surface.Lines().LineAt(at);
    EXPECT_EQ(line.start, word == u"apr"s ? at : 7) << "a row is one line";
    EXPECT_EQ(window.pane.ShownLine(at), line);
    EXPECT_EQ(window.breaker.XOf(window.surface.Content(), at, at + 1), left + 10);
  }
}

TEST_F(RowsTest, HaveTheLinesOfTheirLineBreaks) {
  window.surface.TextRTF(
      u"{\\rtf1\\trowd\\cellx600\\cellx1500\\intbl un deux\\cell trois\\line "
      u"quatre\\cell\\row\\pard b}");
  window.view.Settle();
  for (const auto& [at, line] :
       {std::pair{3, Line{0, 13, 14}}, {9, {0, 13, 14}}, {15, {14, 20, 22}}, {22, {22, 23, -1}}}) {
    EXPECT_EQ(window.surface.Lines().LineAt(at), line) << at;
    EXPECT_EQ(window.pane.ShownLine(at), line) << at;
  }
}

TEST_F(RowsTest, AreAsWideAsDefined) {
  struct Definition {
    std::u16string_view row;
    std::vector<double> rights;
    double left = 0;
  };
  const Definition definitions[] = {
      {u"\\cellx600\\cellx1500\\intbl a\\cell\\cell", {60, 150}},
      {u"\\intbl a\\cell b\\cell", {150, 300}},
      {u"\\cellx600\\intbl a\\cell b\\cell c\\cell", {60, 180, 300}},
      {u"\\cellx600\\cellx100\\intbl a\\cell b\\cell", {60, 84}},
      {u"\\cellx600{\\*\\x}\\cellx1500\\intbl a\\tab b\\cell c\\cell", {60, 150}},
      {u"\\cellx600\\cellx1500\\intbl a\\cell b\\par c\\cell", {60, 150}},
      {u"\\cellx600\\cellx1500\\cellx2000\\intbl a\\cell b\\cell", {150, 200}, 60}};
  for (const Definition& one : definitions) {
    window.surface.TextRTF(u"{\\rtf1\\trowd" + std::u16string(one.row) + u"\\row}");
    window.view.Settle();
    const Document& document = window.surface.Content();
    const Piece& row =
        window.pane.Cache().At(document.ParagraphStart(document.ParagraphCount() - 1));
    std::vector<double> rights;
    for (const PieceCell& cell : row.cells) rights.push_back(cell.right);
    EXPECT_EQ(rights, one.rights) << ToUtf8(one.row);
    EXPECT_EQ(row.cells.front().left, one.left) << ToUtf8(one.row);
  }
}

// The parts behind a paragraph as "left,top,right,bottom colour".
std::string Parts(Window& window, int paragraph, const RowOnPage& page = {},
                  const BackdropColours& colours = {}) {
  const Document& document = window.surface.Content();
  const Piece& piece = window.pane.Cache().At(document.ParagraphStart(paragraph));
  std::ostringstream out;
  for (const auto& [area, colour, line] :
       BackdropOf(window.layouter, document, piece, {-9, 0, 400, 200}, colours, page))
    out << area.left << ',' << area.top << ',' << area.right << ',' << area.bottom << ' '
        << std::hex << colour << std::dec << "; ";
  return out.str();
}

TEST_F(RowsTest, HaveLinesAndGrounds) {
  const std::u16string red = u"{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}";
  const std::tuple<std::u16string, int, const char*> notes[] = {
      {u"\\trowd\\cellx600\\intbl a\\cell\\row\\trowd\\cellx600\\intbl b\\cell\\row", 1,
       "0,27,61,28 b3b3b3; 0,0,1,28 b3b3b3; 60,0,61,28 b3b3b3; "},
      {u"\\trowd\\clbrdrl\\brdrs\\brdrw20\\brdrcf1\\clcbpat1\\cellx600\\intbl a\\cell\\row", 0,
       "0,0,60,28 ff; 0,0,2,28 ff; "},
      {u"\\brdrt\\brdrs\\brdrw10\\brsp30 a\\par b", 0, "0,0,300,1 0; "},
      {u"\\brdrt\\brdrs\\brdrw10\\brsp30 a\\par b", 1, ""},
      {u"\\brdrb\\brdrdot\\brdrw999999999 a", 0,
       "0,25,26,51 0; 52,25,78,51 0; "
       "104,25,130,51 0; 156,25,182,51 0; 208,25,234,51 0; 260,25,286,51 0; "},
      {u"\\shading2000 a", 0, "0,0,300,25 cccccc; "},
      {u"\\box\\brdrs\\brdrw20\\brsp60 a", 0,
       "-2,0,302,2 0; -2,39,302,41 0; -2,0,0,41 0; 300,0,302,41 0; "},
      {u"\\trowd\\clbrdrt\\brdrs\\cellx3000\\intbl\\brdrl\\brdrs\\brdrw20\\brdrb\\brdrs\\brdrw20 a"
       u"\\par b\\par\\pard\\intbl\\cbpat1\\sb60 c\\cell\\row",
       0, "0,0,300,2 0; 3,0,5,27 0; 3,52,295,54 0; 3,27,5,54 0; 5,60,295,85 ff; "},
      {u"\\cbpat77\\brdrl\\brdrnone a", 0, ""}};
  for (const auto& [source, paragraph, parts] : notes) {
    window.surface.TextRTF(red + source + u"}");
    window.view.Settle();
    EXPECT_EQ(Parts(window, paragraph), parts) << ToUtf8(source);
  }
}

TEST_F(RowsTest, HaveLinesWhereAPageCutsThem) {
  struct Cut {
    RowOnPage page;
    const char* parts;
  };
  const Cut cuts[] = {{{}, "0,26,60,28 0; "},
                      {{.top = 0}, "0,0,60,2 0; 0,26,60,28 0; "},
                      {{.top = 9}, "0,9,60,11 0; 0,26,60,28 0; "},
                      {{.top = 9, .bottom = 20}, "0,9,60,11 0; 0,18,60,20 0; "},
                      {{.top = 30, .bottom = 40}, ""}};
  const std::u16string row =
      u"\\trowd\\clbrdrt\\brdrs\\clbrdrb\\brdrs\\cellx600\\intbl a\\cell\\row";
  window.surface.TextRTF(u"{\\rtf1" + row + row + u"}");
  window.view.Settle();
  for (const auto& [page, parts] : cuts) EXPECT_EQ(Parts(window, 1, page), parts) << page.top;
  window.surface.TextRTF(u"{\\rtf1\\trowd\\cellx600\\intbl a\\cell\\row" + row + u"}");
  window.view.Settle();
  EXPECT_EQ(Parts(window, 1, {}, {.grid = false}), "0,0,60,2 0; 0,26,60,28 0; ");
}

TEST_F(RowsTest, CaretKeysStayInTheirColumn) {
  window.surface.TextRTF(
      u"{\\rtf1 avant\\par\\trowd\\cellx600\\cellx1500\\intbl un deux trois\\cell "
      u"quatre cinq\\cell\\row\\trowd\\cellx600\\cellx1500\\intbl a\\cell bb\\cell\\row "
      u"apr\\'e8s}");
  using Name = KeyName;
  const std::pair<Position, std::vector<std::pair<Name, Position>>> walks[] = {
      {22,
       {{Name::Down, 29},
        {Name::Down, 37},
        {Name::Down, 45},
        {Name::Up, 37},
        {Name::Up, 29},
        {Name::Up, 22},
        {Name::Up, 5},
        {Name::Down, 22},
        {Name::Home, 21},
        {Name::End, 27}}},
      {29, {{Name::Home, 28}, {Name::End, 32}, {Name::Up, 25}}},
      {16, {{Name::Down, 35}, {Name::Up, 16}, {Name::Up, 11}, {Name::PageDown, 42}}}};
  for (const auto& [start, keys] : walks) {
    window.surface.UserSelect(start, start);
    for (const auto& [key, caret] : keys) {
      window.surface.UserKey({.name = key});
      EXPECT_EQ(window.surface.Caret(), caret) << start << ' ' << static_cast<int>(key);
    }
  }
  window.surface.UserSelect(16, 16);
  EXPECT_EQ(window.pane.LinesPerPage(), 5);
  window.surface.UserKey({.name = Name::Down, .shift = true});
  EXPECT_EQ(window.surface.Selected(), (Selection{16, 35}));
  window.surface.UserSelect(22, 22);
  EXPECT_EQ(window.pane.LinesPerPage(), 4) << "there the row has two lines";
}

// A cell ends with ¦, a paragraph or row with ¶.
TEST_F(RowsTest, KeepTheirCellsWhateverTheKeys) {
  const std::u16string source =
      u"{\\rtf1 a\\par\\trowd\\cellx1500\\cellx3000\\intbl\\qr b\\par c\\cell\\ql d\\par "
      u"e\\cell\\row"
      u"\\pard f\\par}";
  const std::tuple<Position, KeyName, const char*> rows[] = {
      {3, KeyName::BackSpace, "a¶b¶c¦d¶e¶f"}, {1, KeyName::Delete, "a¶b¶c¦d¶e¶f"},
      {7, KeyName::Delete, "a¶b¶c¦d¶e¶f"},    {8, KeyName::BackSpace, "a¶b¶c¦d¶e¶f"},
      {12, KeyName::Delete, "a¶b¶c¦d¶e¶f"},   {14, KeyName::BackSpace, "a¶b¶c¦d¶e¶f"},
      {6, KeyName::BackSpace, "a¶bc¦d¶e¶f"},  {4, KeyName::Delete, "a¶bc¦d¶e¶f"},
      {11, KeyName::BackSpace, "a¶b¶c¦de¶f"}, {7, KeyName::Return, "a¶b¶c¶¦d¶e¶f"},
      {9, KeyName::Return, "a¶b¶c¦d¶¶e¶f"},   {12, KeyName::Return, "a¶b¶c¦d¶e¶¶f"}};
  for (const auto& [at, key, text] : rows) {
    window.surface.TextRTF(source);
    window.view.Settle();
    window.surface.UserSelect(at, at);
    window.surface.UserKey({.name = key});
    window.view.Settle();
    const std::u16string saved = window.surface.TextRTF();
    for (int loaded = 0; loaded < 2; ++loaded) {
      const std::u16string shown = ReplaceEvery(window.surface.Text(), u"\r\n", u"¶");
      EXPECT_EQ(ToUtf8(ReplaceEvery(shown, u"\t", u"¦")), text) << at;
      const Piece& row = window.pane.Cache().At(4);
      EXPECT_EQ(row.cells.size(), 2u) << at;
      EXPECT_EQ(ToUtf8(window.surface.TextRTF()), ToUtf8(saved)) << at;
      window.surface.TextRTF(saved);
      window.view.Settle();
    }
  }
}

TEST_F(RowsTest, FitPicturesToTheirCells) {
  window.surface.TextRTF(
      u"{\\rtf1\\trowd\\cellx600\\cellx1500\\intbl a\\cell {\\pict\\pngblip\\picwgoal1600"
      u"\\pichgoal800 00}\\cell\\row}");
  EXPECT_EQ(window.pane.Cache().At(0).boxes.at(0).size, (PixelSize{80, 40}));
}

TEST_F(RowsTest, TabGoesFromCellToCell) {
  window.surface.UserSelect(0, 0);
  EXPECT_FALSE(window.surface.UserKey({.name = KeyName::Tab, .shift = true})) << "no table there";
  window.surface.UserSelect(9, 9);
  for (const auto& [shift, caret] : {std::pair{false, 21}, {false, 33}, {false, 38}, {false, 39}}) {
    window.surface.UserKey({.name = KeyName::Tab, .shift = shift});
    EXPECT_EQ(window.surface.Caret(), caret);
  }
  EXPECT_EQ(window.surface.Text().substr(38, 1), u"\t") << "outside the table it types";
  window.surface.UserSelect(34, 34);
  for (const Position caret : {21, 7, 7}) {
    window.surface.UserKey({.name = KeyName::Tab, .shift = true});
    EXPECT_EQ(window.surface.Caret(), caret);
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
