// Pages of a printed note: where they break, what is on each, the paper, the texts of footnotes.
#include <gtest/gtest.h>
#include <sstream>

#include "backends/headless/FixedLayouter.h"
#include "base/Rows.h"
#include "surface/Fakes.h"
#include "surface/UserBench.h"
#include "view/pages/PageFlow.h"
#include "view/pages/PrintedFootnotes.h"

namespace lumenote {
namespace {

/// "!" begins a page, "+" stays with the band above, "~" precedes the space above, "^" the head's
/// height.
PageBand BandOf(std::string word) {
  PageBand band;
  band.opensPage = word.front() == '!';
  band.stays = word.front() == '+';
  if (band.opensPage || band.stays) word.erase(0, 1);
  band.height = std::stod(word);
  if (const auto space = word.find('~'); space != word.npos)
    band.space = std::stod(word.substr(space + 1));
  if (const auto head = word.find('^'); head != word.npos)
    band.headHeight = std::stod(word.substr(head + 1));
  return band;
}

TEST(PageBreaks, KeepBandsWholeAndTogether) {
  for (const auto& [bands, pages] : Rows<2>(R"(
"" => 0 ¦ 4 => 0 ¦ 5 5 5 => 0 2 ¦ 5 5 !5 => 0 2 ¦ 5 !5 !5 => 0 1 2 ¦ !5 5 => 0
// space counts, but not at the top
5 4~1 => 0 ¦ 5 4~2 => 0 1 ¦ 5 4~2 6 => 0 1
5 4 +4 => 0 1 ¦ 4 +4 +4 +4 => 0 2 ¦ 1 4 +4 +4 => 0 1 3 ¦ 5 +2 +2 +2 1 => 0 3 ¦ 5 3 +2 +2 1 => 0 1
// heads of tables
2 6^2 2^2 6^2 2^2 1^2 => 0 3 5 ¦ 6^9 4 => 0 1
// what is higher than a page
20 => 0 ¦ 4 20 4 => 0 1 2 ¦ 4 +20 4 => 0 1 2
)",
                                            " => ")) {
    std::vector<PageBand> all;
    std::istringstream words(bands);
    for (std::string word; words >> word;) all.push_back(BandOf(word));
    std::string starts;
    for (const std::size_t start : PageStarts(all, 10))
      starts += (starts.empty() ? "" : " ") + std::to_string(start);
    EXPECT_EQ(starts, pages) << bands;
  }
}

struct Printed {
  explicit Printed(std::string_view words) {
    bench.surface.TextRTF(u"{\\rtf1\\fs20" + FromUtf8(words) + u"}");
  }
  const Document& Content() const { return bench.surface.Content(); }

  /// The lines on pages of five.
  std::u16string Pages(Selection range);

  UserBench bench;
  FixedLayouter layouter;
};

std::u16string Printed::Pages(Selection range) {
  layouter.Width(70);
  const PageFlow flow(Content(), range, layouter, 80);
  const std::vector<std::size_t> starts = PageStarts(flow.Bands(), 80);
  std::u16string shown;
  for (std::size_t page = 0; page < starts.size(); ++page) {
    if (page > 0) shown += u"/";
    const bool last = page + 1 == starts.size();
    flow.ForEachPart(starts[page], last ? flow.Bands().size() : starts[page + 1],
                     [&](const PageFlow::Part& part) {
                       for (const PieceLine& line : part.piece.lines)
                         if (part.y + line.top > part.top - 1 &&
                             part.y + line.top + line.height < part.bottom + 1)
                           shown += Content().Text(part.piece.ToPosition(line.start),
                                                   part.piece.ToPosition(line.end));
                     });
  }
  return shown;
}

TEST(PageFlow, FillsPagesWithLines) {
  for (const auto& [words, pages] : Rows<2>(R"(
 a\par b\par c\par d\par e\par f => abcde/f ¦  a\par b\par c\par d\par e\par => abcde
 a\par b\par c\par aaaaaaaa bbbbbbbb cccccccc => abc/aaaaaaaa bbbbbbbb cccccccc
 a\par b\par c\par\nowidctlpar aaaaaaaa bbbbbbbb cccccccc => abcaaaaaaaa bbbbbbbb /cccccccc
 a\par b\par c\par\keep\nowidctlpar aaaaaaaa bbbbbbbb cccccccc => abc/aaaaaaaa bbbbbbbb cccccccc
 a\par b\par c\par d\par\keepn e\par\pard f => abcd/ef
 a\par\pagebb b => a/b ¦  a\page b => a/b ¦  a\sect b => a/b ¦  a\sect\sectd\sbknone b => ab
 a\par\page b => a/b ¦  a\par\page\par b => a/b ¦ \page a => a ¦  a\par\column b => ab
 a\par\sect\sectd b => a/b ¦  a\par\sect\sectd\sbknone b => ab
 a\par\page\trowd\cellx700\intbl b\cell\row => a/b
 a\par\sb800 b\par\pard c\par d\par e\par => a/bcde ¦  a\par\sb600\sa200 b\par\pard c => ab/c
\trowd\cellx1400\intbl a\line b\line c\line d\line e\line f\cell\row => a{b{c{d{e{/f
 a\par\trowd\cellx700\cellx1400\intbl b\line c\line d\line e\cell f\cell\row\pard g => a/b{c{d{e>f/g
 a\par b\par\trowd\cellx700\cellx1400\intbl b\line c\line d\line e\cell f\cell\row => ab/b{c{d{e>f
)",
                                            " => ")) {
    Printed note(words);
    const std::u16string shown = note.Pages({0, note.Content().Length()});
    EXPECT_EQ(ToUtf8(ReplaceEvery(ReplaceEvery(shown, u"\v", u"{"), u"\t", u">")), pages) << words;
  }
  Printed note(" abc\\par def\\par ghi");
  EXPECT_EQ(ToUtf8(note.Pages({1, 11})), "bcdefg");
  Printed endless(std::string(50'000, 'a'));
  EXPECT_EQ(std::ranges::count(endless.Pages({0, 50'000}), u'/'), 999);
}

TEST(PageFlow, RepeatsTheHeadsOfTables) {
  // "H" begins a row that heads its table, "R" another one
  for (const auto& [words, pages] : Rows<2>(R"(
Ha;Rb;Rc;Rd;Re;Rf;Rg;Rh;Ri; => abcd/aefg/ahi ¦ Ha;Hb;Rc;Rd;Re;Rf; => abcd/abef
x\par y\par z\par w\par Ha;Rb; => xyzw/ab ¦ Ra;Rb;Rc;Rd;Re;Rf; => abcd/ef
Ha;Rb;Rc;Rd;x\par y => abcd/xy ¦ Ha;Rb;Hc;Rd;Re;Rf; => abcd/cef
Ha;Rb\line c\line d\line e\line f;Rg; => ab{c{d{/ae{fg
// a head takes half of the page at most, and cuts no row
Ha;Hb;Hc;Rd;Re;Rf; => abcd/ef ¦ Ha;Rb\line c\line d\line e;Rf; => a/b{c{d{e/af
)",
                                            " => ")) {
    std::string note;
    for (const char c : words)
      if (c == 'H' || c == 'R')
        note += c == 'H' ? "\\trowd\\trhdr\\cellx1400\\intbl " : "\\trowd\\cellx1400\\intbl ";
      else
        note += c == ';' ? std::string("\\cell\\row\\pard ") : std::string(1, c);
    Printed printed(note);
    const std::u16string shown = printed.Pages({0, printed.Content().Length()});
    EXPECT_EQ(ToUtf8(ReplaceEvery(shown, u"\v", u"{")), pages) << words;
  }
}

TEST(Paper, IsWhatTheNoteStates) {
  for (const auto& [words, lengths] : Rows<2>(R"(
 a => 11906 16838 1134 1134 1134 1134
\paperw8391\paperh11906\margl567\margr600\margt-700\margb800 a => 8391 11906 567 600 700 800
// without room for text
\paperw5000\margl3000\margr3000 a => 5000 16838 625 625 1134 1134
\paperw-99999999\paperh1\margl99999999{\info\paperw9} a => 31680 1440 15840 1134 180 180
)",
                                              " => ")) {
    const Paper paper = PaperOf(Printed(words).Content());
    std::ostringstream shown;
    shown << paper.width << ' ' << paper.height << ' ' << paper.left << ' ' << paper.right << ' '
          << paper.top << ' ' << paper.bottom;
    EXPECT_EQ(shown.str(), lengths) << words;
  }
}

TEST(PrintedFootnotes, HaveTheirNumbers) {
  const Printed note(
      R"( a{\super\chftn{\footnote\chftn  un}}b{\footnote * deux}c{\chftn{\footnote\chftn  trois}})");
  const Position length = note.Content().Length();
  EXPECT_EQ(ToUtf8(FootnotesIn(note.Content(), {0, length}).Text(0, 99)),
            "1.\tun\r\n* deux\r\n2.\ttrois");
  EXPECT_EQ(FootnotesIn(note.Content(), {0, 1}).Length(), 0);
}

TEST(PrintedFootnotes, HaveTheirItalicsAndParagraphs) {
  const Printed note(
      R"( a{\chftn{\footnote\chftn\i   Carex\i0  et {\b gras\par}\plain\i fin \par}})");
  const Document notes = FootnotesIn(note.Content(), {0, note.Content().Length()});
  EXPECT_EQ(ToUtf8(notes.Text(0, 99)), "1.\tCarex et gras\r\n\tfin");
  std::string looks;
  notes.ForEachRun(0, notes.Length(), [&](Position start, TextView, CharId id) {
    looks +=
        std::to_string(start) + ":" + std::to_string(notes.Formats().characters[id].effects) + " ";
  });
  EXPECT_EQ(looks, "0:0 3:2 8:0 12:1 19:2 ");
}

}  // namespace
}  // namespace lumenote
