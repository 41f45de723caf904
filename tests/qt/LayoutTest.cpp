// The layout by Qt keeps the contract of layouters, and what it lays out is painted.
#include <QImage>
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "backends/qt/toolkit/Pixels.h"
#include "backends/qt/view/RichTextView.h"
#include "base/Strings.h"
#include "surface/Fakes.h"
#include "view/Edits.h"
#include "view/LayoutContract.h"
#include "view/layout/PieceBreaker.h"

namespace lumenote {

std::unique_ptr<TextLayouter> MakeLayouter() { return std::make_unique<QtLayouter>(); }
bool LayouterAligns() { return true; }

namespace {

/// A surface as the backend makes it, without a window.
struct TestSurface {
  TestSurface() { layouter.Width(300); }

  MemoryClipboard clipboard;
  MemoryFiles files;
  QtLayouter layouter;
  PieceBreaker breaker{layouter};
  DocumentSurface surface{clipboard, files, breaker};
};

/// As the widget does, without its window.
QImage Painted(RichTextView& view, const ViewMarks& marks, QImage image, const Damage& damage) {
  QPainter painter(&image);
  if (const auto& shift = damage.shift) {
    const QRect from(0, static_cast<int>(shift->top), image.width(),
                     static_cast<int>(shift->bottom - shift->top));
    painter.drawImage(from.topLeft() + QPoint(0, static_cast<int>(shift->by)), image.copy(from));
  }
  for (const PixelRect& area : damage.areas) {
    painter.setClipRect(ToQRect(area));
    ViewPainter(view.Pane(), view.Layouter(), {marks, {}}).Paint(painter, ToQRect(area));
  }
  return image;
}

/// What there is to see, painted at once.
QImage Whole(RichTextView& view, const ViewMarks& marks, const QImage& empty) {
  Damage everything;
  everything.Add({0, 0, 1.0 * empty.width(), 1.0 * empty.height()});
  return Painted(view, marks, empty, everything);
}

bool HasInk(const QImage& image, const QRectF& area) {
  const QImage part = image.copy(area.toAlignedRect());
  const QImage grey = part.convertToFormat(QImage::Format_Grayscale8);
  return std::ranges::any_of(grey.constBits(), grey.constBits() + grey.sizeInBytes(),
                             [](uchar ink) { return ink < 128; });
}

// Moving and painting only what is said to be damaged gives the same picture as painting
// everything; every line of a long paragraph is painted.
TEST(ViewDamageTest, MissesNothing) {
  std::mt19937 random(11);
  TestSurface test;
  test.surface.Text(RandomNote());
  RichTextView view(test.surface, test.layouter, {}, nullptr);  // passes on what the surface tells
  TextPane& pane = view.Pane();
  pane.Resize({420, 300});
  ViewDamage damage(pane);
  const QImage empty(420, 300, QImage::Format_RGB32);
  QImage image = empty;
  int shifts = 0;
  for (int i = 0; i < 150; ++i) {
    EditAtRandom(test.surface, random);
    if (i % 5 == 0) test.surface.UserSelect(static_cast<Position>(random() % 3000), 0);
    if (i % 3 == 0) pane.Reveal(test.surface.Caret());
    if (i % 4 == 0) pane.Scroll().By(70);
    ViewMarks marks{.selection = test.surface.Selected()};
    marks.caret = pane.CaretAt(test.surface.Caret());
    const Damage taken = damage.Take(marks);
    shifts += taken.shift ? 1 : 0;
    image = Painted(view, marks, image, taken);
    ASSERT_EQ(image, Whole(view, marks, empty)) << i;
  }
  EXPECT_GT(shifts, 5);
  test.surface.Text(Words(9000));
  pane.Scroll().By(500);
  image = Whole(view, {}, empty);
  for (const ShownPiece& item : pane.Visible())
    for (const PieceLine& line : item.piece->lines) {
      const QRectF box(0, item.y + line.top, 420, line.height);
      EXPECT_TRUE(!QRectF(image.rect()).contains(box) || HasInk(image, box)) << box.top();
    }
}

// Of a red and a blue pixel, the blue one, however much larger the whole image would be.
TEST(PicturesTest, ShowOnlyTheirPart) {
  for (const char16_t* frame :
       {u"\\picwgoal600\\pichgoal300\\piccropl300 ",
        u"\\picwgoal2000000000\\pichgoal300\\piccropl1999999700 ",
        u"\\picwgoal300\\pichgoal2000000000\\piccropl150\\piccropb1999999850 ",
        u"\\picwgoal1000000000\\pichgoal60\\piccropl999999940 "}) {
    TestSurface test;
    test.surface.TextRTF(u"{\\rtf1{\\pict\\dibitmap0" + std::u16string(frame) +
                         u"2800000002000000010000000100180000000000000000000000000000000000"
                         u"00000000000000000000ffff00000000}}");
    RichTextView view(test.surface, test.layouter, {}, nullptr);
    view.Pane().Resize({100, 60});
    const QImage image = Whole(view, {}, QImage(100, 60, QImage::Format_RGB32));
    int blue = 0;
    for (int i = 0; i < 100 * 60; ++i) {
      const QRgb pixel = image.pixel(i % 100, i / 100) & RGB_MASK;
      EXPECT_NE(pixel, 0xFF0000u);
      blue += pixel == 0x0000FFu ? 1 : 0;
    }
    EXPECT_GT(blue, 10);
  }
}

}  // namespace
}  // namespace lumenote
