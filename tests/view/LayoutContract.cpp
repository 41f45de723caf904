#include "view/LayoutContract.h"

#include <gtest/gtest.h>

#include "surface/Fakes.h"
#include "view/Edits.h"
#include "view/layout/PieceBreaker.h"
#include "view/pane/TextPane.h"

namespace lumenote {
namespace {

struct LayoutCase {
  const char* name;
  std::u16string rtf;
};

void PrintTo(const LayoutCase& one, std::ostream* out) { *out << one.name; }

class LayoutContract : public testing::TestWithParam<LayoutCase> {
 protected:
  LayoutContract() {
    layouter->Width(300);
    surface.TextRTF(u"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}" + GetParam().rtf + u"}");
  }

  std::vector<Position> LineStarts(LayoutCache& cache) const {
    std::vector<Position> starts;
    for (const Piece* piece = &cache.At(0); piece; piece = cache.After(*piece))
      for (int line = 0; line < std::ssize(piece->lines); ++line)
        starts.push_back(piece->LineStart(line));
    return starts;
  }

  std::unique_ptr<TextLayouter> layouter = MakeLayouter();
  MemoryClipboard clipboard;
  MemoryFiles files;
  PieceBreaker breaker{*layouter};
  DocumentSurface surface{clipboard, files, breaker};
  const Document& document = surface.Content();
};

TEST_P(LayoutContract, ViewAndLineTableAgree) {
  LayoutCache cache(document, *layouter);
  const std::vector<Position> starts = LineStarts(cache);
  std::vector<Position> table;
  for (int line = 0; surface.Lines().LineStart(line) >= 0; ++line)
    table.push_back(surface.Lines().LineStart(line));
  EXPECT_EQ(starts, table);
  EXPECT_GT(starts.size(), 1u);
  TextPane pane(surface, *layouter);
  for (const Position start : starts)
    EXPECT_EQ(pane.ShownLine(start), surface.Lines().LineAt(start)) << start;
}

// A caret is where it says it is, and stands at no place inside a character.
TEST_P(LayoutContract, CaretsAndPointsAreInverse) {
  LayoutCache cache(document, *layouter);
  for (const Piece* piece = &cache.At(0); piece; piece = cache.After(*piece)) {
    EXPECT_TRUE(piece->closes || piece->to > piece->from);
    for (int line = 0; line < std::ssize(piece->lines); ++line) {
      const PieceLine& box = piece->lines[static_cast<std::size_t>(line)];
      EXPECT_GE(box.height, 1);
      for (int index = box.start; index < box.end; ++index) {
        const double x = piece->CaretX(line, index);
        const Position found = piece->PositionAt(line, x);
        EXPECT_NEAR(piece->XOf(found), x, 0.02) << index;
        EXPECT_EQ(document.SnapBackward(found), found);
        const Position shown = piece->CharacterAt(line, x + 0.01);
        EXPECT_TRUE(shown < 0 || piece->LineOf(shown) == line) << index;
      }
    }
  }
}

// Whatever part of a paragraph is laid out, from a line's start it has the same lines.
TEST_P(LayoutContract, SpansOfAParagraphGiveTheSameLines) {
  const Position end = document.ParagraphEnd(0);
  const auto whole = layouter->LayOut(document, {.from = 0, .to = end});
  const int lines = static_cast<int>(whole->lines.size());
  for (int line = 1; line < lines; line += 3) {
    const Position from = whole->LineStart(line);
    const auto rest = layouter->LayOut(document, {.from = from, .to = end});
    ASSERT_EQ(std::ssize(rest->lines), lines - line);
    for (int i = line; i < lines; ++i) EXPECT_EQ(rest->LineStart(i - line), whole->LineStart(i));
    EXPECT_FALSE(rest->opens);
    const auto cut = layouter->LayOut(document, {.from = 0, .to = from, .complete = false});
    const bool broken = document.At(from - 1) == u'\v';  // then the line before is not cut
    EXPECT_TRUE(cut ? cut->to == whole->LineStart(line - 1) || (broken && cut->to == from)
                    : line == 1);
    const auto known = layouter->LayOut(document, {.from = 0, .to = end, .nextKnown = from});
    EXPECT_EQ(known->to, from);
    EXPECT_FALSE(known->closes);
  }
}

TEST_P(LayoutContract, ComposedTextIsShownButNotCounted) {
  const Position at = document.SnapBackward(std::min(20, document.ParagraphEnd(0)));
  layouter->Composed({at, u"\u3042\u3044", 1});
  const auto piece = layouter->LayOut(document, {.from = 0, .to = document.ParagraphEnd(0)});
  EXPECT_EQ(piece->composedLength, 2);
  EXPECT_EQ(piece->ToIndex(at), at + 1);
  EXPECT_EQ(piece->to, document.ParagraphEnd(0));
  EXPECT_GT(piece->lines.front().height, 0);
}

const std::u16string kWords = Words(700);

INSTANTIATE_TEST_SUITE_P(
    Paragraphs, LayoutContract,
    testing::Values(LayoutCase{"Plain", kWords + u"\\par\\par " + kWords},
                    LayoutCase{"Long", Words(9000)},
                    LayoutCase{"WithoutBlanks", std::u16string(5000, u'x')},
                    LayoutCase{"Indented", u"\\li600\\fi-300\\ri500 " + kWords},
                    LayoutCase{"Justified", u"\\qj\\fi400 " + Words(4000)},
                    LayoutCase{"Tabs", u"\\tx1500\\tqr\\tx3000 a\\tab b\\tab c " + kWords},
                    LayoutCase{"LineBreaks", kWords + u"\\line x\\line\\line " + kWords},
                    LayoutCase{"Sizes", u"\\fs40 " + kWords + u"\\fs16\\b " + kWords},
                    LayoutCase{"Hidden", kWords + u"{\\v " + kWords + u"}" + kWords},
                    LayoutCase{"Capitals", u"{\\scaps " + kWords + u"}{\\caps " + kWords + u"}"},
                    LayoutCase{"Raised", kWords + u"{\\super " + kWords + u"}\\expnd4 " + kWords},
                    LayoutCase{"BeyondOneUnit", kWords + u"\\u-10188?\\u-8930? " + kWords},
                    LayoutCase{"NoRoom", u"\\li30000\\ri30000 " + Words(60)}),
    [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace lumenote
