#include "view/LayoutContract.h"

#include <gtest/gtest.h>

#include "base/Strings.h"
#include "surface/Fakes.h"
#include "view/Edits.h"
#include "view/layout/PieceBreaker.h"
#include "view/pane/TextPane.h"

namespace lumenote {
namespace {

struct LayoutCase {
  const char* name;
  std::u16string rtf;
  double before = 0;  // the share of a line's free room on its left
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
        if (piece->BeginsLine(document, line)) starts.push_back(piece->LineStart(line));
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
  EXPECT_FALSE(starts.empty());
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
  const int lines = whole->cells.empty() ? static_cast<int>(whole->lines.size()) : 0;
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
  EXPECT_TRUE(piece->closes);
  EXPECT_GT(piece->lines.front().height, 0);
}

// A row is one piece, whatever is asked for; its cells do not overlap, nor do tables in them.
TEST_P(LayoutContract, CellsLieBesideEachOther) {
  const auto row = layouter->LayOut(document, {.from = 0, .to = document.ParagraphEnd(0)});
  if (row->cells.empty()) return;
  const auto part = layouter->LayOut(document, {.from = row->to / 2, .to = row->to});
  EXPECT_EQ(std::pair(part->from, part->to), std::pair(0, row->to));
  for (int line = 0; line < std::ssize(row->lines); ++line) {
    const PieceLine& box = row->lines[static_cast<std::size_t>(line)];
    const PieceCell& cell = row->cells[static_cast<std::size_t>(row->CellOf(line))];
    EXPECT_EQ(row->LineAt(box.top, cell.right - 1), line);
    EXPECT_GE(box.top, cell.top);
    EXPECT_LE(box.top + box.height, cell.bottom);
    for (int index = box.start; index < box.end; ++index) {
      EXPECT_GE(row->CaretX(line, index), cell.left - 0.5);
      EXPECT_LE(row->CaretX(line, index), cell.right + 0.5);
    }
  }
  for (const PieceCell& cell : row->cells) {
    if (cell.parent < 0) continue;
    const PieceCell& around = row->cells[static_cast<std::size_t>(cell.parent)];
    EXPECT_TRUE(cell.left >= around.left && cell.right <= around.right + 0.5);
    EXPECT_TRUE(cell.top >= around.top && cell.bottom <= around.bottom);
  }
}

// Down and Up go where the piece says that the neighbouring line at the same x is.
TEST_P(LayoutContract, CaretKeysGoAlongTheLinesOfACell) {
  const auto row = layouter->LayOut(document, {.from = 0, .to = document.ParagraphEnd(0)});
  if (row->cells.empty()) return;
  const auto press = [&](Position from, KeyName key) {
    surface.UserSelect(from, from);
    surface.UserKey({.name = key});
    return surface.Caret();
  };
  for (int line = 0; line < std::ssize(row->lines); ++line) {
    const Position start = row->LineStart(line);
    EXPECT_EQ(press(press(start, KeyName::End), KeyName::Home), start);
    const double x = row->XOf(start);
    const int below = row->LineBeside(line, true, x);
    const Position found = press(start, KeyName::Down);
    EXPECT_TRUE(below < 0 ? found == start || found > row->to : row->LineOf(found) == below);
    if (below < 0) continue;
    EXPECT_GE(row->lines[static_cast<std::size_t>(below)].top,
              row->lines[static_cast<std::size_t>(line)].top);
    EXPECT_EQ(row->LineOf(press(found, KeyName::Up)), row->LineBeside(below, false, x));
  }
}

// As high as its highest box, and the carets of a box are its edges.
TEST_P(LayoutContract, BoxesTakeTheirRoom) {
  const auto piece = layouter->LayOut(document, {.from = 0, .to = document.ParagraphEnd(0)});
  for (const InlineBox& box : piece->boxes) {
    const int line = piece->LineOf(piece->ToPosition(box.index));
    const PieceLine& shown = piece->lines[static_cast<std::size_t>(line)];
    EXPECT_GE(shown.baseline - shown.top, box.size.height);
    const double left = piece->CaretX(line, box.index);
    EXPECT_NEAR(piece->CaretX(line, box.index + 1) - left, box.size.width, 0.02);
    EXPECT_EQ(piece->CharacterAt(line, left + box.size.width / 2), piece->ToPosition(box.index));
  }
}

// Blanks at the end of a line do not move its word from where its alignment puts it.
class HangingBlanks : public LayoutContract {};
TEST_P(HangingBlanks, DoNotMoveWords) {
  const auto piece = layouter->LayOut(document, {.from = 0, .to = document.ParagraphEnd(0)});
  const double width = piece->cells.empty() ? layouter->Width() : piece->cells[0].right;
  const double before = LayouterAligns() ? GetParam().before : 0;
  ASSERT_EQ(piece->lines.size(), 5u);
  for (int line = 0; line < 5; ++line) {
    const Position start = piece->LineStart(line);
    const auto [left, right] = std::minmax({piece->XOf(start), piece->XOf(start + 3)});
    EXPECT_NEAR(left, before * (width - right + left), piece->cells.empty() ? 1 : 9) << line;
  }
}

const std::u16string kWords = Words(700);
const std::u16string kHebrew = u"\\u1513?\\u1500?\\u1493?\\u1501? ";
const std::u16string kObject = u"{\\pict\\pngblip\\picwgoal900\\pichgoal600 00}";

std::u16string Times(int count, const std::u16string& text) {
  std::u16string all;
  while (count-- > 0) all += text;
  return all;
}

const std::u16string kParagraphs = u"\\trowd\\cellx2400\\cellx4800\\intbl\\qr un\\par\\qc " +
                                   Words(30) + u"\\par\\qj\\li300\\sb200 " + Words(40) +
                                   u"\\cell\\pard\\intbl a\\line b\\par c\\tab " + kHebrew +
                                   u"\\par\\cell\\row\\pard x";
const std::u16string kNested =
    u"\\trowd\\cellx3000\\cellx4800\\intbl un\\par\\itap2 a " + Words(20) +
    u"\\nestcell b\\par c\\nestcell{\\*\\nesttableprops\\trowd\\cellx900\\cellx9000\\nestrow}"
    u"\\itap3 d\\nestcell{\\*\\nesttableprops\\trowd\\cellx400\\nestrow}\\itap2 e\\nestcell"
    u"{\\*\\nesttableprops\\trowd\\cellx900\\nestrow}\\pard\\intbl " +
    Words(20) + u"\\cell deux\\cell\\row\\pard x";

INSTANTIATE_TEST_SUITE_P(
    Paragraphs, LayoutContract,
    testing::Values(LayoutCase{"Plain", kWords + u"\\par\\par " + kWords},
                    LayoutCase{"Long", Words(9000)},
                    LayoutCase{"WithoutBlanks", std::u16string(5000, u'x')},
                    LayoutCase{"Indented", u"\\li600\\fi-300\\ri500 " + kWords},
                    LayoutCase{"Justified", u"\\qj\\fi400 " + Words(4000)},
                    LayoutCase{"Tabs", u"\\tx1500\\tqr\\tx3000 a\\tab b\\tab c " + kWords},
                    LayoutCase{"Formats", Times(300, u"{\\b e}s\\tab t ")},
                    LayoutCase{"LineBreaks", kWords + u"\\line x\\line\\line " + kWords},
                    LayoutCase{"Sizes", u"\\fs40 " + kWords + u"\\fs16\\b " + kWords},
                    LayoutCase{"Hidden", kWords + u"{\\v " + kWords + u"}" + kWords},
                    LayoutCase{"Capitals", u"{\\scaps " + kWords + u"}{\\caps " + kWords + u"}"},
                    LayoutCase{"Raised", kWords + u"{\\super " + kWords + u"}\\expnd4 " + kWords},
                    LayoutCase{"BeyondOneUnit", kWords + u"\\u-10188?\\u-8930? " + kWords},
                    LayoutCase{"BothDirections", Times(30, u"un " + kHebrew + u"12 (" + kHebrew)},
                    LayoutCase{"FromTheRight", u"\\rtlpar " + Times(90, kHebrew)},
                    LayoutCase{"Objects", Times(40, u"un" + kObject + kObject + u" ")},
                    LayoutCase{"Row",
                               u"\\trowd\\cellx900\\cellx3000\\intbl un deux\\line\\cell\\cell " +
                                   Words(90) + u"\\tab x" + kHebrew + u"\\row " + kWords},
                    LayoutCase{"JustifiedRow", u"\\trowd\\cellx2400\\cellx4800\\qj\\intbl " +
                                                   Words(90) + u"\\cell " + Words(80) + u"\\row"},
                    LayoutCase{"Paragraphs", kParagraphs}, LayoutCase{"Nested", kNested},
                    LayoutCase{"NoRoom", u"\\li30000\\ri30000 " + Words(60)}),
    [](const auto& info) { return info.param.name; });

const std::u16string kLines =
    u" mot\\line mot  \\line mot {\\v  }  \\line mot " + Times(90, u" ") + u"mot {\\v x}";
const std::u16string kHebrewLines = ReplaceEvery(kLines, u"mot", u"\\u1493?\\u1493?\\u1493?");
INSTANTIATE_TEST_SUITE_P(
    Alignments, HangingBlanks,
    testing::Values(LayoutCase{"Left", u"\\ql" + kLines}, LayoutCase{"Right", u"\\qr" + kLines, 1},
                    LayoutCase{"Centre", u"\\qc" + kLines, 0.5},
                    LayoutCase{"FromTheRight", u"\\rtlpar" + kHebrewLines, 1},
                    LayoutCase{"FromTheRightToTheRight", u"\\rtlpar\\qr" + kHebrewLines, 1},
                    LayoutCase{"FromTheRightToTheLeft", u"\\rtlpar\\ql" + kHebrewLines},
                    LayoutCase{"FromTheRightCentred", u"\\rtlpar\\qc" + kHebrewLines, 0.5},
                    LayoutCase{"Cell", u"\\trowd\\cellx4000\\intbl\\qr" + kLines + u"\\cell\\row",
                               1}),
    [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace lumenote
