// The text that comes out of RTF.
#include <gtest/gtest.h>

#include "CheckRows.h"
#include "Reading.h"

namespace lumenote {
namespace {

TEST(Reader, BringsOutTheText) {
  const auto text = [](const std::string& rtf) { return TextOf(Read(rtf)); };
  CheckRows(DataFile("reader.rows"), text, "{\\rtf1 ", "}");
  CheckRows("a\tb\xE9\\\xE9z => a⇥bééz", text, "{\\rtf1 ", "}");
  CheckRows(R"(
{\rtf1 Hello}␍␊trailing => Hello ¦ {\rtf1 a{\b b{\i c => abc ¦ {\rtf1 caf\'e => caf
no RTF at all => no RTF at all ¦ a}b{c => abc ¦ {\rtf1 Hello}␣␣ => Hello ¦ {\rtf1 => "" ¦ \ => ""
)"
            "\uFEFF ␍␊{␊ \\rtf1 a{\\b b}} => ab",
            text);
  EXPECT_EQ(text(""), "");
}

TEST(Reader, ReadsRunsOfEveryLength) {
  for (const std::string_view stop : {"\\line", "{\\line}", "\\'0b", "\\u11?"}) {
    for (std::size_t length = 0; length < 40; ++length) {
      const std::string run(length, '~');
      const std::string rtf = std::string("{\\rtf1 ").append(run).append(stop);
      EXPECT_EQ(TextOf(Read(rtf + "{zzzzzzzzz}}")), run + "\vzzzzzzzzz") << rtf;
    }
  }
}

TEST(Reader, PassesOverNulBytes) {
  const std::string_view rtf("{\\rtf1\0 T\0h\0is\\b\0}\0\0", 20);
  EXPECT_EQ(TextOf(Read(rtf)), " This");
}

TEST(Reader, TakesEveryParagraphOfASelectionForABreak) {
  EXPECT_EQ(TextOf(Read(R"({\rtf1 a\par})", RtfTarget::Selection)), "a\n");
  EXPECT_EQ(TextOf(Read(R"({\rtf1 a})", RtfTarget::Selection)), "a");
  FormatTables tables;
  EXPECT_FALSE(ReadRtf(R"({\rtf1 a\par})", tables, RtfTarget::Selection).mark);
}

TEST(Reader, RecognisesRtf) {
  for (const char* rtf : {"{\\rtf1 a}", "{\\RTF1", "{\\urtf x", "{\\rtf sometext}"}) {
    EXPECT_TRUE(LooksLikeRtf(rtf)) << rtf;
  }
  for (const char* other : {"", "{\\rt", "text", "a {\\rtf1}", "{{\\rtf1}}", "\\rtf1"}) {
    EXPECT_FALSE(LooksLikeRtf(other)) << other;
  }
}

}  // namespace
}  // namespace lumenote
