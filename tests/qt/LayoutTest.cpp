// The layout: what is shown, what the line queries say and what the document holds agree.
#include <QImage>
#include <gtest/gtest.h>
#include <random>

#include "Desk.h"
#include "backends/qt/view/RichTextView.h"
#include "backends/qt/view/ViewDamage.h"

namespace lumenote {
namespace {

/// Line starts as a view lays them out, walking from piece to piece.
std::vector<Position> LineStarts(LayoutCache& cache) {
  std::vector<Position> starts;
  for (const Piece* piece = &cache.At(0); piece; piece = cache.After(*piece))
    for (int line = 0; line < std::ssize(piece->lines); ++line)
      starts.push_back(piece->LineStart(line));
  return starts;
}

std::vector<Position> LineStarts(LineTable& lines) {
  std::vector<Position> starts;
  for (int line = 0; lines.LineStart(line) >= 0; ++line) starts.push_back(lines.LineStart(line));
  return starts;
}

struct LayoutCase {
  const char* name;
  std::u16string rtf;
};

class LayoutAgreement : public testing::TestWithParam<LayoutCase> {};

TEST_P(LayoutAgreement, OfViewAndLineTable) {
  TestSurface test;
  test.surface.TextRTF(u"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}" + GetParam().rtf + u"}");
  LayoutCache cache(test.surface.Content(), test.layouter);
  EXPECT_EQ(LineStarts(cache), LineStarts(test.surface.Lines()));
  EXPECT_GT(LineStarts(cache).size(), 1u);
  TextPane pane(test.surface, test.layouter);
  for (const Position start : LineStarts(cache))
    EXPECT_EQ(pane.ShownLine(start), test.surface.Lines().LineAt(start)) << start;
}

const std::u16string kWords = Words(700);

INSTANTIATE_TEST_SUITE_P(
    Paragraphs, LayoutAgreement,
    testing::Values(LayoutCase{"Plain", kWords + u"\\par\\par " + kWords},
                    LayoutCase{"Long", Words(9000)},
                    LayoutCase{"WithoutBlanks", std::u16string(5000, u'x')},
                    LayoutCase{"Indented", u"\\li600\\fi-300\\ri500 " + kWords},
                    LayoutCase{"Justified", u"\\qj\\fi400 " + Words(4000)},
                    LayoutCase{"Tabs", u"\\tx1500\\tqr\\tx3000 a\\tab b\\tab c " + kWords},
                    LayoutCase{"LineBreaks", kWords + u"\\line x\\line\\line " + kWords},
                    LayoutCase{"Sizes", u"\\fs40 " + kWords + u"\\fs16\\b " + kWords},
                    LayoutCase{"Hidden", kWords + u"{\\v " + kWords + u"}" + kWords},
                    LayoutCase{"NoRoom", u"\\li30000\\ri30000 " + Words(60)}),
    [](const auto& info) { return info.param.name; });

// Every character lies in exactly one piece, whichever way the text is walked through.
TEST(LayoutCacheTest, CoversOneHugeParagraphBothWays) {
  TestSurface test;
  const std::u16string text = Words(300'000);
  test.surface.Text(text);
  LayoutCache cache(test.surface.Content(), test.layouter);
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

/// Acts of many kinds at random places.
void EditAtRandom(DocumentSurface& surface, std::mt19937& random) {
  const Position length = surface.Content().Length();
  const auto below = [&](int most) {
    return static_cast<int>(random() % static_cast<unsigned>(most));
  };
  const Position from = below(length + 1);
  surface.UserSelect(from, std::min(length, from + (below(3) ? 0 : below(200))));
  switch (below(8)) {
    case 0:
      return surface.UserType(u"\r\n");
    case 1:
      return surface.Clear();
    case 2:
      return surface.SelBold(below(2));
    case 3:
      return surface.SelIndent(100 * below(9));
    case 4:
      return surface.SelAlignment(below(3));
    case 5:
      return surface.Undo();
    case 6:
      return surface.SelText(Words(static_cast<std::size_t>(below(400))));
    default:
      return surface.UserType(u"mot ");
  }
}

std::u16string RandomNote() {
  return Words(1500) + u"\r\n" + Words(40) + u"\r\n\r\n" + Words(5000) + u"\r\n" + Words(300);
}

TEST(RichTextViewTest, ShowsTheDocumentAfterAnyEdits) {
  std::mt19937 random(7);
  TestSurface test;
  test.surface.Text(RandomNote());
  RichTextView view(test.surface, test.layouter, {}, nullptr);
  view.resize(420, 300);
  view.show();
  for (int i = 0; i < 300; ++i) {
    EditAtRandom(test.surface, random);
    view.Settle();
    ASSERT_EQ(view.Differences(), std::vector<std::string>{}) << "edit " << i;
  }
  LayoutCache fresh(test.surface.Content(), test.layouter);
  EXPECT_EQ(LineStarts(view.Pane().Cache()), LineStarts(fresh));
}

QImage Painted(TextPane& pane, const PaintState& state, QImage image, const QRegion& region) {
  QPainter painter(&image);
  for (const QRect& area : region) {
    painter.setClipRect(area);
    ViewPainter(pane, state).Paint(painter, area);
  }
  return image;
}

bool HasInk(const QImage& image, const QRectF& area) {
  const QImage part = image.copy(area.toAlignedRect());
  for (int y = 0; y < part.height(); ++y)
    for (int x = 0; x < part.width(); ++x)
      if (qGray(part.pixel(x, y)) < 128) return true;
  return false;
}

TEST(ViewPainterTest, PaintsEveryLineOfALongParagraph) {
  TestSurface test;
  test.surface.Text(Words(9000));
  TextPane pane(test.surface, test.layouter);
  pane.Resize(QSizeF(300, 900));
  pane.Scroll().By(500);
  const QRect all(0, 0, 300, 900);
  const QImage image = Painted(pane, {}, QImage(all.size(), QImage::Format_RGB32), all);
  for (const ShownPiece& item : pane.Visible())
    for (const PieceLine& line : item.piece->lines) {
      const QRectF box(0, item.y + line.top, 300, line.height);
      EXPECT_TRUE(!QRectF(all).contains(box) || HasInk(image, box)) << box.top();
    }
}

// Painting only what is said to be damaged gives the same picture as painting everything.
TEST(ViewDamageTest, MissesNothing) {
  std::mt19937 random(11);
  TestSurface test;
  test.surface.Text(RandomNote());
  RichTextView view(test.surface, test.layouter, {}, nullptr);  // passes on what the surface tells
  TextPane& pane = view.Pane();
  pane.Resize(QSizeF(420, 300));
  ViewDamage damage(pane);
  const QRect all(0, 0, 420, 300);
  QImage image(all.size(), QImage::Format_RGB32);
  for (int i = 0; i < 150; ++i) {
    EditAtRandom(test.surface, random);
    damage.DocumentChanged();
    if (i % 5 == 0) test.surface.UserSelect(static_cast<Position>(random() % 3000), 0);
    if (i % 3 == 0) pane.Reveal(test.surface.Caret());
    PaintState state;
    state.selection = test.surface.Selected();
    state.caret = pane.CaretAt(test.surface.Caret());
    image = Painted(pane, state, image, damage.Take(state));
    ASSERT_EQ(image, Painted(pane, state, QImage(all.size(), QImage::Format_RGB32), all)) << i;
  }
}

// --- scrolling

struct ScrollTest : testing::Test {
  ScrollTest() {
    std::u16string text;
    for (int i = 0; i < 2000; ++i) text += Words(static_cast<std::size_t>(20 + i % 200)) + u"\r\n";
    test.surface.Text(text);
    pane.Resize(QSizeF(400, 300));
  }
  Position TopLine() {
    const ShownPiece first = pane.Visible().front();
    return first.piece->LineStart(first.piece->LineAt(-first.y));
  }

  TestSurface test;
  RichTextView view{test.surface, test.layouter, {}, nullptr};
  TextPane& pane = view.Pane();
};

TEST_F(ScrollTest, KeepsTheTopLineWhenTextAboveChangesAndWhenTheWidthDoes) {
  pane.Scroll().To(5000);
  const Position top = TopLine();
  ASSERT_GT(top, 1000);
  test.surface.UserSelect(10, 500);
  test.surface.UserType(u"x");
  EXPECT_EQ(TopLine(), top - 489);
  pane.Resize(QSizeF(200, 300));
  const ShownPiece first = pane.Visible().front();
  EXPECT_TRUE(first.piece->Holds(top - 489));
}

TEST_F(ScrollTest, ReachesTheEndOfTheScaleExactlyWithTheLastLine) {
  const double most = pane.Scroll().Read().total - 300;
  pane.Scroll().To(most * 0.9);
  EXPECT_LT(pane.Scroll().Read().value, most);
  pane.Scroll().To(most);
  const ShownPiece last = pane.Visible().back();
  EXPECT_EQ(last.piece->to, test.surface.Content().Length());
  EXPECT_NEAR(last.y + last.piece->height, 300, 0.01);
  EXPECT_EQ(pane.Scroll().Read().value, most);
  pane.Scroll().By(-1e5);
  pane.Scroll().ToStart();
  EXPECT_EQ(pane.Visible().front().y, 0);
  EXPECT_EQ(pane.Scroll().Read().value, 0);
}

TEST_F(ScrollTest, RevealsAPositionWithAsLittleMovementAsCanBe) {
  const Position below = pane.Visible().back().piece->to + 2;
  pane.Reveal(below);
  EXPECT_NEAR(pane.LineAt(below)->bottom(), 300, 0.01);
  pane.Reveal(100'000);
  EXPECT_TRUE(QRectF(0, 0, 400, 300).contains(*pane.LineAt(100'000)));
}

}  // namespace
}  // namespace lumenote
