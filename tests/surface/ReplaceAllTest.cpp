// Replacing all matches does what finding and replacing one after another does.
#include <gtest/gtest.h>
#include <random>

#include "surface/UserBench.h"

namespace lumenote {
namespace {

/// Of few letters, so that matches abound, in runs that begin anywhere.
std::string Source(std::mt19937& random) {
  static const char* const kPieces[] = {
      "a",
      "b",
      "ab",
      "B",
      "A",
      ".",
      " ",
      "\\'e9",
      "\\u937?",
      "{\\b ab}",
      "\\i ",
      "\\plain ",
      "{\\field{\\*\\fldinst HYPERLINK \"http://a\"}{\\fldrslt ab a}}",
      "a\\par ",
      "b\\line ",
      "{\\footnote ab}",
      "\\page a",
      "\\sect ab",
      "{\\*\\bkmkstart ab}a{\\*\\bkmkend ab}",
      "\\par\\trowd\\cellx900\\cellx1800\\intbl ab\\cell a b\\cell\\row\\pard ",
      "\\par{\\pntext 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec{\\pntxta .}}a\\par\\pard "};
  std::string source = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}";
  const unsigned plain = random() % 2 == 0 ? 10 : std::size(kPieces);
  for (unsigned i = 0; i < 1500; ++i) source += kPieces[random() % plain];
  return source + "}";
}

std::u16string Letters(std::mt19937& random, unsigned most) {
  std::u16string letters;
  for (unsigned i = random() % (most + 1); i > 0; --i)
    letters += u"aabbBA. é\u03A9\t"[random() % 11];
  return letters;
}

Position OneAfterAnother(DocumentSurface& surface, std::u16string_view text,
                         std::u16string_view replacement, int options, Position most) {
  Position count = 0;
  const EditGroup group(surface);
  for (Position start = 0; surface.Find(text, start, options) != -1 && ++count <= most;) {
    start = surface.SelStart() + surface.SelLength();
    const Position length = surface.TextLength() - surface.SelLength();
    surface.SelText(replacement);
    start += surface.TextLength() - length - static_cast<Position>(replacement.size());
  }
  return count;
}

TEST(ReplaceAll, DoesWhatReplacingOneAfterAnotherDoes) {
  std::mt19937 random(1);
  for (int round = 0; round < 400 && !testing::Test::HasFailure(); ++round) {
    const std::u16string source = FromUtf8(Source(random));
    const std::u16string text = Letters(random, 3), replacement = Letters(random, 5);
    const int options = static_cast<int>(random() % 4) * 2;
    const Position most = random() % 2 == 0 ? 300 : static_cast<Position>(random() % 4);
    SCOPED_TRACE(ToUtf8(text + u" -> " + replacement) + " " + std::to_string(options));
    UserBench bench, twin;
    for (DocumentSurface* surface : {&bench.surface, &twin.surface}) {
      surface->TextMode(8);
      surface->TextRTF(source);
    }
    const std::u16string before = bench.surface.TextRTF();
    EXPECT_EQ(bench.surface.ReplaceAll(text, replacement, options, most),
              OneAfterAnother(twin.surface, text, replacement, options, most));
    EXPECT_EQ(bench.surface.TextRTF(), twin.surface.TextRTF());
    EXPECT_EQ(bench.surface.SelStart(), twin.surface.SelStart());
    EXPECT_EQ(bench.surface.SelLength(), twin.surface.SelLength());
    for (DocumentSurface* surface : {&bench.surface, &twin.surface}) surface->UserType(u"x");
    EXPECT_EQ(bench.surface.TextRTF(), twin.surface.TextRTF());
    while (bench.surface.CanUndo()) bench.surface.Undo();
    EXPECT_EQ(bench.surface.TextRTF(), before);
    while (bench.surface.CanRedo()) bench.surface.Redo();
    EXPECT_EQ(bench.surface.TextRTF(), twin.surface.TextRTF());
  }
}

TEST(ReplaceAll, IsOneChangeWhereOnePassWillDo) {
  UserBench bench;
  bench.surface.Text(u"un et un");
  int changes = 0;
  bench.surface.OnChange([&] { ++changes; });
  EXPECT_EQ(bench.surface.ReplaceAll(u"un", u"trois", 0, 9), 2);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(bench.surface.ReplaceAll(u"trois", u"dix", 0, 1), 2);  // the second one is selected
  EXPECT_EQ(bench.surface.Text(), u"dix et trois");
  EXPECT_EQ(bench.surface.SelText(), u"trois");
  EXPECT_EQ(bench.surface.ReplaceAll(u"quatre", u"", 0, 9), 0);
  EXPECT_EQ(changes, 2);
}

TEST(ReplaceAll, PassesOverTheEndsOfCells) {
  UserBench bench;
  bench.surface.TextRTF(
      u"{\\rtf1\\trowd\\cellx900\\cellx1800\\intbl a\\cell b\\cell\\row\\pard c\\tab d}");
  EXPECT_EQ(bench.surface.ReplaceAll(u"\t", u";", 0, 9), 2);
  EXPECT_EQ(bench.surface.Text(), u"a;\tb\r\nc;d");
}

}  // namespace
}  // namespace lumenote
