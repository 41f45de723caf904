// The visible numbers of lists follow the edits, as the source's lists say.
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace lumenote
