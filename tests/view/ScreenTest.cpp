// Whatever is done, the screen shows what a naive layout of the whole note says.
#include <gtest/gtest.h>

#include "view/Window.h"
#include "view/acts/ViewDrop.h"
#include "view/acts/ViewKeys.h"

namespace lumenote {
namespace {

constexpr PixelSize kSize{300, 200};

/// Something that changes what is shown: an edit, or one of these.
void ActAtRandom(Window& window, std::mt19937& random) {
  static constexpr void (*kActs[])(Window&, std::mt19937&, Position) = {
      [](Window& w, std::mt19937& r, Position) { w.view.ScrollBy(Below(r, 400) - 200); },
      [](Window& w, std::mt19937& r, Position at) {
        w.view.Select(at, Below(r, w.surface.Content().Length() + 1));
      },
      [](Window& w, std::mt19937&, Position at) { w.view.DropCaret(at); },
      [](Window& w, std::mt19937& r, Position) {
        w.view.Compose({w.surface.Caret(), u"composé", Below(r, 8)});
      },
      [](Window& w, std::mt19937& r, Position) { w.pane.Scroll().To(Below(r, 20'000)); },
      [](Window& w, std::mt19937&, Position) { w.view.Blink(); },
      [](Window& w, std::mt19937& r, Position) {
        w.view.Resize({200.0 + Below(r, 100), 200});
      },
      [](Window& w, std::mt19937& r, Position) { w.surface.RightMargin(6000.0F * Below(r, 2)); },
      [](Window& w, std::mt19937& r, Position) {
        w.surface.SetParaFormat({.mask = ParagraphRecord::kLineSpacing,
                                 .lineSpacingRule = LineRule::Exact,
                                 .lineSpacing = 150 + 50 * Below(r, 6)});
      }};
  const auto act = static_cast<std::size_t>(Below(random, 12));
  if (act >= std::size(kActs)) return EditAtRandom(window.surface, random);
  kActs[act](window, random, Below(random, window.surface.Content().Length() + 1));
}

/// Lines, places and points as in a layout of everything. Where a paragraph has several pieces an
/// edit in one of them need not move the lines of another at once.
void CompareWithWhole(Window& window, std::mt19937& random) {
  TextPane& pane = window.pane;
  const WholeLayout whole(window.surface.Content(), window.layouter);
  if (whole.LongestParagraph() > 1000) return;
  const ShownPiece top = pane.Visible().front();
  const double offset = whole.PlaceOf(top.piece->from).y - top.piece->lines.front().top - top.y;
  for (int look = 0; look < 8; ++look) {
    const std::size_t number = random() % whole.Lines().size();
    const Line& line = whole.Lines()[number];
    if (window.layouter.Composed().text.empty()) {
      LineTable& lines = window.surface.Lines();
      ASSERT_EQ(lines.LineAt(std::max(line.start, line.end - 1)).start, line.start);
      ASSERT_EQ(lines.LineAt(line.start), line);
      if (look == 7) {  // which lays out all before it
        ASSERT_EQ(lines.LineOf(line.start), static_cast<int>(number));
        ASSERT_EQ(lines.LineStart(static_cast<int>(number)), line.start);
        ASSERT_EQ(lines.LineEnd(static_cast<int>(number)), line.end);
      }
    }
    ASSERT_EQ(pane.ShownLine(line.start), line);
    const PixelPoint point{1.0 * Below(random, 300), 1.0 * Below(random, 200)};
    const Position at = whole.At({point.x - pane.TextLeft(), point.y + offset});
    ASSERT_EQ(pane.PositionAt(point), window.surface.Content().SnapBackward(at));
    const PixelPoint place = whole.PlaceOf(pane.PositionAt(point));
    const std::optional<PixelRect> caret = pane.CaretAt(pane.PositionAt(point));
    ASSERT_TRUE(caret);
    ASSERT_EQ(caret->left, std::round(pane.TextLeft() + place.x));
    ASSERT_EQ(pane.LineAt(pane.PositionAt(point))->top, place.y - offset);
  }
}

/// Rows with several paragraphs in their cells, a table in a cell, and cells whose row never ends.
std::u16string Tables() {
  const std::u16string row = u"\\trowd\\cellx1500\\cellx3000\\intbl\\qr " + Words(40) +
                             u"\\par\\li200 " + Words(30) +
                             u"\\cell\\pard\\intbl un\\line\\par\\cell\\row";
  const std::u16string nested =
      u"\\trowd\\cellx2000\\cellx3900\\intbl a\\par\\itap2 b\\par c\\nestcell " + Words(20) +
      u"\\nestcell{\\*\\nesttableprops\\trowd\\cellx700\\cellx1400\\nestrow}\\pard\\intbl d\\cell "
      u"e\\cell\\row";
  return u"{\\rtf1 avant\\par" + row + row + u"\\pard " + Words(90) + u"\\par" + nested + row +
         u"\\pard\\intbl f\\par g\\cell h\\par i\\par\\pard " + Words(90) + u"}";
}

TEST(Screen, ShowsWhatAWholeLayoutSaysAfterAnyActs) {
  int shifts = 0;
  for (unsigned seed = 1; seed <= 12; ++seed) {
    std::mt19937 random(seed);
    Window window(kSize);
    if (seed % 2)
      window.surface.TextRTF(Tables());
    else
      window.surface.Text(seed % 4 ? ShortParagraphs() : RandomNote());
    for (int i = 0; i < 120; ++i) {
      ActAtRandom(window, random);
      window.view.Settle();
      ASSERT_EQ(window.view.Differences(), std::vector<std::string>{}) << seed << ' ' << i;
      ASSERT_TRUE(window.screen == window.Fresh()) << seed << ' ' << i;
      CompareWithWhole(window, random);
      if (testing::Test::HasFatalFailure()) FAIL() << seed << ' ' << i;
    }
    shifts += window.shifts;
  }
  EXPECT_GT(shifts, 10);
}

struct Cost {
  const char* name;
  void (*act)(Window&);
  double lines;  // of 24 pixels that may be painted for it at most
};

TEST(Screen, PaintsNoMoreThanAnActChanges) {
  const Cost rows[] = {{"typing", [](Window& window) { window.view.Type(u"x"); }, 1.1},
                       {"a break", [](Window& window) { window.view.Type(u"\n"); }, 4},
                       {"scrolling down", [](Window& window) { window.view.ScrollBy(60); }, 4.6},
                       {"scrolling up", [](Window& window) { window.view.ScrollBy(-60); }, 4.6},
                       {"blinking", [](Window& window) { window.view.Blink(); }, 0.1},
                       {"selecting", [](Window& window) { window.view.Select(3000, 3010); }, 2.1},
                       {"nothing", [](Window& window) { window.view.Compose({}); }, 0}};
  for (const Cost& row : rows) {
    Window window({300, 240});
    std::u16string text;
    for (int i = 0; i < 300; ++i) text += Words(20) + u"\r\n";
    window.surface.Text(text);
    window.surface.UserSelect(3003, 3003);
    window.view.Settle();
    window.painted = 0;
    row.act(window);
    window.view.Settle();
    EXPECT_LE(window.painted / (300 * 24), row.lines) << row.name;
    EXPECT_TRUE(window.screen == window.Fresh()) << row.name;
  }
}

// A view hears of a batch once, an input method of many moves once.
TEST(Screen, TellsOfABatchOnce) {
  Window window(kSize);
  window.Type(u"un deux trois|");
  window.changes = window.moves = 0;
  window.surface.Atomically([&] {
    for (const Position at : {0, 3, 8}) {
      window.surface.UserSelect(at, at + 2);
      window.surface.SelText(u"x");
    }
  });
  EXPECT_EQ(window.changes, 1);
  for (const Position at : {0, 3, 8}) window.view.Select(at, at);
  window.view.Settle();
  EXPECT_EQ(window.moves, 1);
  EXPECT_EQ(window.surface.Text(), u"x dxx trxs");
  EXPECT_TRUE(window.screen == window.Fresh());
}

// --- scrolling

TEST(Scrolling, KeepsTheTopLineWhenTextAboveChangesAndWhenTheWidthDoes) {
  Window window(kSize);
  window.surface.Text(Words(30'000) + u"\r\n" + Words(30'000));
  const auto top = [&] {
    const ShownPiece first = window.pane.Visible().front();
    return first.piece->LineStart(first.piece->LineAt(-first.y));
  };
  window.view.Show(false);  // so that the caret is not revealed
  window.pane.Scroll().To(20'000);
  const Position line = top();
  ASSERT_GT(line, 1000);
  window.surface.UserSelect(10, 500);
  window.view.Type(u"x");
  EXPECT_EQ(top(), line - 489);
  window.view.Resize({200, 200});
  EXPECT_TRUE(window.pane.Visible().front().piece->Holds(line - 489));
}

TEST(Scrolling, ReachesBothEndsOfTheScaleExactlyAndRevealsWithLittleMovement) {
  Window window(kSize);
  window.surface.Text(Words(60'000));
  ScrollModel& scroll = window.pane.Scroll();
  const double most = scroll.Read().total - 200;
  scroll.To(most * 0.9);
  EXPECT_LT(scroll.Read().value, most);
  scroll.To(most);
  const ShownPiece last = window.pane.Visible().back();
  EXPECT_EQ(last.piece->to, 60'000);
  EXPECT_NEAR(last.y + last.piece->height, 200, 0.01);
  EXPECT_EQ(scroll.Read().value, most);
  scroll.By(-1e6);
  EXPECT_EQ(scroll.Read().value, 0);
  const Position below = window.pane.PositionAt({0, 205}) + 30;
  window.pane.Reveal(below);
  EXPECT_NEAR(window.pane.LineAt(below)->bottom, 200, 0.01);
  window.pane.Reveal(40'000);
  EXPECT_GE(window.pane.LineAt(40'000)->top, 0);
  EXPECT_LE(window.pane.LineAt(40'000)->bottom, 200);
}

// Meanwhile the slider stays about where it will be.
TEST(Scrolling, LaysOutTheRestOfASmallNoteWhenTheUserIsIdle) {
  Window window(kSize);
  std::u16string text;
  for (int i = 0; i < 60; ++i) text += Words(i % 3 == 0 ? 5 : 400) + u"\r\n";
  window.surface.Text(text);
  ScrollModel& scroll = window.pane.Scroll();
  window.view.Settle();
  EXPECT_EQ(window.idles, 1);
  EXPECT_LT(window.pane.Cache().Pieces().size(), 10U);
  const double first = scroll.Read().total;
  for (int left = window.idles; left > 0; --left) {
    const int before = window.idles;
    window.view.WorkIdly();
    left += window.idles - before;
  }
  const WholeLayout whole(window.surface.Content(), window.layouter);
  const double height = whole.PlaceOf(window.surface.TextLength()).y + 24;
  EXPECT_NEAR(scroll.Read().total, height, 1);
  EXPECT_NEAR(first, height, 0.05 * height);

  window.view.Resize({250, 200});
  scroll.To(scroll.Read().total - 200);  // the bar's end is the text's, guessed or not
  EXPECT_NEAR(window.pane.LineAt(window.surface.TextLength())->bottom, 200, 0.01);
}

TEST(Scrolling, SelectingAllKeepsWhatIsLookedAt) {
  Window window(kSize);
  window.surface.Text(Words(5'000));
  window.view.Settle();
  window.view.ScrollBy(100);
  ViewKeys(window.view).Press(ParseKey(u"Ctrl+A"), u"");
  window.view.Settle();
  EXPECT_EQ(window.surface.Selected().Length(), 5'000);
  EXPECT_EQ(window.pane.Scroll().Read().value, 100);
}

// Every character lies in exactly one piece, whichever way the text is walked through.
TEST(LayoutCache, CoversOneHugeParagraphBothWays) {
  Window window(kSize);
  window.surface.Text(Words(300'000));
  LayoutCache& cache = window.pane.Cache();
  const Piece* piece = &cache.At(150'000);  // far from any known line start
  for (Position from = piece->from; piece && from > 100'000; from = piece->from) {
    piece = cache.Before(*piece);
    ASSERT_EQ(piece->to, from);
  }
  for (Position to = piece->to; to < 200'000; to = piece->to) {
    piece = cache.After(*piece);
    ASSERT_EQ(piece->from, to);
  }
}

}  // namespace
}  // namespace lumenote
