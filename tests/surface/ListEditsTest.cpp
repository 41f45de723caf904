// The visible numbers of lists follow the edits, as the source's lists say.
#include <gtest/gtest.h>
#include <tuple>

#include "base/DataFile.h"
#include "base/Rows.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

/// A list table of the levels "start/form/text", where "%1" stands for a number, and two lists that
/// use it: \ls1, and \ls2, which restarts the first level at 5.
std::string Tables(std::string_view levels) {
  std::string table = "{\\*\\listtable{\\list";
  for (const std::string& level : Split(levels, " ")) {
    const std::vector<std::string> parts = Split(level, "/");
    std::string text;
    int length = 0;
    for (std::size_t i = 0; i < parts[2].size(); ++i, ++length) {
      const bool number = parts[2][i] == '%';
      text += number ? std::string("\\'0") + static_cast<char>(parts[2][++i] - 1)
                     : parts[2].substr(i, 1);
    }
    table += "{\\listlevel\\levelnfc" + parts[1] + "\\levelstartat" + parts[0] +
             "{\\leveltext\\'0" + std::to_string(length) + text + ";}{\\levelnumbers;}}";
  }
  return table +
         "\\listid7}}{\\*\\listoverridetable{\\listoverride\\listid7\\listoverridecount0\\ls1}"
         "{\\listoverride\\listid7\\listoverridecount1{\\lfolevel\\listoverridestartat"
         "\\levelstartat5}\\ls2}}";
}

/// What a paragraph's first letter says of it, and the rest of the paragraph.
std::string Paragraph(const std::string& paragraph) {
  const char kind = paragraph[0];
  std::string words = "\\pard";
  if (kind >= '0' && kind <= '2') words += std::string("\\ls1\\ilvl") + kind;
  if (kind == '+') words += "\\ls2\\ilvl0";
  if (kind == '?') words += "\\ls9\\ilvl0";
  if (kind == 'p') words += "{\\*\\pn\\pnlvlbody\\pnucrm\\pnstart3{\\pntxtb (}{\\pntxta )}}";
  const std::size_t tab = paragraph.find("⇥");
  if (tab == paragraph.npos) return words + " " + paragraph.substr(1);
  return words + (kind == 'p' ? "{\\pntext " : "{\\listtext ") + paragraph.substr(1, tab - 1) +
         "\\tab}" + paragraph.substr(tab + std::string_view("⇥").size());
}

std::string Source(std::string_view levels, const std::string& note) {
  std::string source = "{\\rtf1" + Tables(levels);
  for (const std::string& paragraph : Split(note, "¶"))
    source += Paragraph(Replaced(Replaced(paragraph, "|", ""), "^", "")) + "\\par ";
  return source + "}";
}

TEST(ListEdits, NumbersFollow) {
  for (const auto& [levels, before, keys, after] : Rows<4>(DataFile("lists.rows"), " => ")) {
    UserBench bench;
    const std::string source = Source(levels, before);
    bench.surface.TextRTF(FromUtf8(source));
    const std::string saved = ToUtf8(bench.surface.TextRTF());
    std::u16string marked;
    for (const std::string& paragraph : Split(before, "¶"))
      marked += (marked.empty() ? u"" : u"¶") + FromUtf8(paragraph.substr(1));
    bench.Select(marked);
    EXPECT_TRUE(bench.Press(FromUtf8(keys))) << keys;
    EXPECT_EQ(Replaced(ToUtf8(bench.Shown()), "\t", "⇥"), after) << before << keys;
    while (bench.surface.CanUndo()) bench.surface.Undo();
    EXPECT_EQ(ToUtf8(bench.surface.TextRTF()), saved) << before;
  }
}

/// A note on a list of Arabic numbers, "un" and what follows.
std::string Numbered(const std::string& rest) {
  return "{\\rtf1" + Tables("1/0/%1.") + "\\pard\\ls1{\\listtext 1.\\tab}un" + rest + "}";
}
const std::string kDeux = "\\par{\\listtext 2.\\tab}deux";

TEST(ListEdits, WhatTheSourceSaysAtNumbersStays) {
  const std::string section = "\\par\\sect\\sectd\\sbkpage{\\header TETE}";
  const std::string cyrillic =
      "{\\rtf1\\ansi\\ansicpg1251{\\*\\listtable{\\list{\\listlevel\\levelnfc0\\levelstartat1"
      "{\\leveltext\\'04\\'c3\\'eb \\'00;}}\\listid7}}{\\*\\listoverridetable{\\listoverride"
      "\\listid7\\ls1}}\\pard\\ls1{\\listtext \\'c3\\'eb 1\\tab}un}";
  const std::tuple<std::string, std::string, std::string, std::string, std::string> cases[] = {
      {Numbered(section + kDeux.substr(4)), "1.\tun¶|2.\tdeux", "BackSpace", "1.⇥un|deux", "TETE"},
      {Numbered(section + "{\\listtext 2.\\tab}"), "1.\tun¶|2.\t", "BackSpace", "1.⇥un|", "TETE"},
      {Numbered("\\par{\\listtext 2{\\*\\bkmkstart c}.\\tab}b"), "1.\tun|¶2.\tb", "Return",
       "1.⇥un¶2.⇥|¶3.⇥b", "{\\*\\bkmkstart c}"},
      {Numbered(kDeux), "1.\tun¶2.\tdeux|", "Ctrl+a Ctrl+c Ctrl+End Return Ctrl+v",
       "1.⇥un¶2.⇥deux¶3.⇥un¶4.⇥deux|", "3.\\tab}"},
      {cyrillic, "Гл 1\tun|", "Return", "Гл 1⇥un¶|", "\\u1043?\\u1083? 1\\tab}"},
  };
  for (const auto& [source, before, keys, after, kept] : cases) {
    UserBench bench;
    bench.surface.TextRTF(FromUtf8(source));
    const std::u16string saved = bench.surface.TextRTF();
    bench.Select(FromUtf8(before));
    EXPECT_TRUE(bench.Press(FromUtf8(keys))) << keys;
    EXPECT_EQ(Replaced(ToUtf8(bench.Shown()), "\t", "⇥"), after);
    EXPECT_NE(bench.surface.TextRTF().find(FromUtf8(kept)), std::u16string::npos)
        << ToUtf8(bench.surface.TextRTF());
    while (bench.surface.CanUndo()) bench.surface.Undo();
    EXPECT_EQ(bench.surface.TextRTF(), saved) << before;
  }
}

TEST(ListEdits, NumbersBetweenTwoEditsStay) {
  UserBench bench;
  bench.surface.TextRTF(FromUtf8(Source("1/0/%1.", "01.⇥a¶0b)⇥b¶0x)⇥c¶04.⇥d¶05.⇥e")));
  bench.Select(u"1.\ta¶b)\tb¶x)\tc¶^4.\td¶|5.\te");
  bench.surface.UserDrop(0, false);
  EXPECT_EQ(ToUtf8(bench.Shown()), "^1.\td¶|2.\ta¶b)\tb¶x)\tc¶5.\te");
}

}  // namespace
}  // namespace lumenote
