// What the editor does not show comes through reading, editing and writing.
#include <gtest/gtest.h>

#include "Reading.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

/// What stands behind the head of the source.
std::string Body(const std::string& rtf) {
  constexpr std::string_view kHead = "\\viewkind4\\uc1\\pard";
  const std::size_t at = rtf.find(kHead);
  return at == rtf.npos ? rtf : rtf.substr(at + kHead.size());
}

class Keeping : public testing::TestWithParam<Case> {};
TEST_P(Keeping, WritesWhatItRead) {
  const std::string written = WriteRtf(Read(GetParam().rtf));
  EXPECT_EQ(Body(written), GetParam().expected);
  EXPECT_EQ(WriteRtf(Read(written)), written);
}

INSTANTIATE_TEST_SUITE_P(
    Places, Keeping,
    testing::Values(
        Case{
            R"({\rtf1 a{\field{\*\fldinst HYPERLINK "x"}{\fldrslt b\b c{\field{\*\fldinst P}{\*\fldrslt 7}}}}d})",
            "\\f0\\fs24 a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt b\\b c"
            "{\\field{\\*\\fldinst P}{\\*\\fldrslt 7}}}}d\\par }\r\n"},
        Case{
            R"({\rtf1 a{\field{\*\fldinst PAGE}{\fldrslt}}b{\*\bkmkstart k}c{\footnote n\bin1 }}d})",
            "\\f0\\fs24 a{\\field{\\*\\fldinst PAGE}{\\fldrslt}}b{\\*\\bkmkstart k}c"
            "{\\footnote n\r\n7d}d\\par }\r\n"},
        Case{
            R"({\rtf1 a{\*\z}b{\*\z}c\uc2{\field\fs2\fldedit{\*\fldinst\u233 ??}{\fldrslt\fs24 d}}})",
            "\\f0\\fs24 a{\\*\\z}b{\\*\\z}c{\\field\\uc2\\fldedit{\\*\\fldinst\\u233 ??}"
            "{\\fldrslt\\uc1 d}}\\par }\r\n"},
        Case{
            R"({\rtf1 a\sect\sectd\cols2{\field\bin1 x{\*\fldinst X}{\fldrslt b}{\fldrslt c}}\par\ls1{\listtext 1.}{\field{\*\fldinst Y}{\fldrslt d}}})",
            "\\f0\\fs24 a\\sect\r\n\\sectd\\cols2{\\field{\\*\\fldinst X}{\\fldrslt b}}c\\par\r\n"
            "\\pard\\ls1\\ilvl0\\fi0\\li0\\ri0\\sb0\\sa0\\sl240\\slmult1\\ql"
            "{\\listtext\\plain\\f0\\fs24 1.}{\\field{\\*\\fldinst Y}{\\fldrslt d}}\\par }\r\n"},
        Case{R"({\rtf1 a\page b\par\page c\sect\sectd\cols2 d})",
             "\\f0\\fs24 a\\page\r\nb\\par\r\n\\page c\\sect\r\n\\sectd\\cols2 d\\par }\r\n"},
        Case{R"({\rtf1 a\par\page{\*\z}})", "\\f0\\fs24 a\\par \\page{\\*\\z}}\r\n"},
        Case{
            R"({\rtf1\pard\brdrt\brdrs\brdrw10\brdrb\brdrs\brdrw10\keepn\keepn\foo1 a\par\pard{\kerning8 b}c})",
            "\\brdrt\\brdrs\\brdrw10\\brdrb\\brdrs\\brdrw10\\keepn\\f0\\fs24 a\\par\r\n"
            "\\pard\\kerning8 b\\plain\\f0\\fs24 c\\par }\r\n"},
        Case{R"({\rtf1\rtlch\af1\ltrch\hich\af2\b a\dbch\b0 b})",
             "\\fi0\\li0\\ri0\\sb0\\sa0\\sl240\\slmult1\\ql\\rtlch\\af1\\ltrch\\b\\fs24\\hich\\af2"
             "\\f0 a"
             "\\plain\\rtlch\\af1\\ltrch\\hich\\af2\\dbch\\f0\\fs24 b\\par }\r\n"},
        Case{R"({\rtf1{\*\x\uc0\u233 \'e9}\pard\uc0{\*\y \u233 }a})",
             "\\fi0\\li0\\ri0\\sb0\\sa0\\sl240\\slmult1\\ql\\f0\\fs24{\\*\\y\\uc0 \\u233}a\\par "
             "}\r\n"}));

INSTANTIATE_TEST_SUITE_P(
    Tables, Keeping,
    testing::Values(
        Case{
            R"({\rtf1\trowd\cellx9\cellx19\pard\intbl a\par b\cell\qc c\cell\trowd\cellx9\row\pard d})",
            "\\intbl\\f0\\fs24\\trowd\\cellx9\\cellx19 a\\par\r\nb\\cell"
            "\\pard\\intbl\\qc c\\cell\\trowd\\cellx9\\row\r\n\\pard d\\par }\r\n"},
        Case{
            R"({\rtf1\pard\intbl\itap2 a\nestcell{\nonesttables\par}{\*\nesttableprops\trowd\cellx9\nestrow}\pard\intbl b\cell\row\pard c})",
            "\\intbl\\itap2\\f0\\fs24 a\\nestcell\\pard\\intbl\\itap2"
            "{\\*\\nesttableprops\\trowd\\cellx9\\nestrow}{\\nonesttables\\par}\r\n"
            "\\pard\\intbl b\\cell\\row\r\n\\pard c\\par }\r\n"},
        Case{
            R"({\rtf1\pard\intbl\itap3 a\nestcell\pard b\nestcell\itap2{\*\nesttableprops\nestrow}\pard\intbl c\cell\row})",
            "\\intbl\\itap2\\f0\\fs24 a\\nestcell b\\nestcell\\pard\\intbl\\itap2"
            "{\\*\\nesttableprops\\nestrow}{\\nonesttables\\par}\r\n"
            "\\pard\\intbl c\\cell\\row\r\n}\r\n"},
        Case{R"({\rtf1\pard\intbl\itap2 a\nestcell b\cell\row\pard c})",
             "\\intbl\\f0\\fs24 a\\tab b\\cell\\row\r\n\\pard c\\par }\r\n"},
        Case{R"({\rtf1\pard\intbl\page\trowd\cellx9\cell\row\page\trowd\cellx9\cell\row\pard a})",
             "\\intbl\\page\\trowd\\cellx9\\f0\\fs24\\cell\\trowd\\cellx9\\row\r\n"
             "\\page\\trowd\\cellx9\\cell\\trowd\\cellx9\\row\r\n\\pard a\\par }\r\n"},
        Case{R"({\rtf1\pard\intbl{\field{\fldrslt a\row\pard b}}})",
             "\\intbl{\\field{\\fldrslt\\f0\\fs24 a\\cell\\row\r\n\\pard b}}\\pard\\f0\\fs24\\par "
             "}\r\n"},
        Case{R"({\rtf1\pard\intbl a\cell b\cell\par\pard c})",
             "\\f0\\fs24 a\\tab b\\tab\\par\r\nc\\par }\r\n"}));

INSTANTIATE_TEST_SUITE_P(
    Lists, Keeping,
    testing::Values(
        Case{R"({\rtf1\pard\ls1\fi-9{\listtext 1.\tab}a\par})",
             "\\ls1\\ilvl0\\fi-9\\li0\\ri0\\sb0\\sa0\\sl240\\slmult1\\ql"
             "{\\listtext\\plain\\f0\\fs24 1.\\tab}\\f0\\fs24 a\\par }\r\n"},
        Case{R"({\rtf1\pard{\pntext 1.\tab}{\*\pn\pnlvlbody\pnstart1}a\par})",
             "{\\*\\pn\\pnlvlbody\\pnstart1}{\\pntext\\plain\\f0\\fs24 1.\\tab}\\f0\\fs24 a\\par "
             "}\r\n"},
        Case{R"({\rtf1 a\par\page\ls1{\listtext 1.}{\*\z}b})",
             "\\f0\\fs24 a\\par\r\n"
             "\\pard\\ls1\\ilvl0\\fi0\\li0\\ri0\\sb0\\sa0\\sl240\\slmult1\\ql"
             "\\page{\\listtext\\plain\\f0\\fs24 1.}{\\*\\z}b\\par }\r\n"},
        Case{R"({\rtf1\pard{\listtext 1.\tab}a\par})", "\\f0\\fs24 1.\\tab a\\par }\r\n"}));

TEST(Keeping, KeepsTheHeadWithTheNumbersOfItsTables) {
  const std::string written = WriteRtf(Read(
      R"({\rtf1\ansi\ansicpg1251\deff7{\fonttbl{\f7\fcharset204 B;}{\f9\fcharset0 C;}}{\colortbl;\red1\green0\blue0;\red2\green0\blue0;}{\stylesheet{\s3\b\cf2 T;}}{\info{\title \'cf}}{\*\generator x;}\paperw9\sectd\pard\s3 \'cf})"));
  EXPECT_EQ(written,
            "{\\rtf1\\ansi\\ansicpg1251\\deff7\\deflang1036{\\fonttbl{\\f7\\fcharset204 B;}"
            "{\\f9\\fcharset0 C;}}\r\n"
            "{\\colortbl ;\\red1\\green0\\blue0;\\red2\\green0\\blue0;}\r\n"
            "{\\stylesheet{\\s3\\b\\cf2 T;}}{\\info{\\title \\'cf}}\\paperw9\\sectd"
            "{\\*\\generator Lumenote;}\\viewkind4\\uc1\\pard\\s3\\fi0\\li0\\ri0\\sb0\\sa0\\sl240"
            "\\slmult1\\ql\\f7\\fs24\\u1055?\\par }\r\n");
  EXPECT_EQ(WriteRtf(Read(written)), written);
}

TEST(Keeping, FieldsThatBeginANoteKeepItsText) {
  const std::string_view heads[] = {"",
                                    R"({\fonttbl{\f0 Arial;}})",
                                    R"({\fonttbl{\f0 Arial;}}{\info{\title T}})",
                                    R"({\stylesheet{\s1 T;}}\paperw9\foo1)",
                                    R"({\*\bkmkstart h}{\*\bkmkend h}\sectd\cols2)",
                                    R"({\header h}{\info x}\ls1{\listtext\tab}{\*\y})",
                                    R"({\listtext{\*\listtable{\list\listid1}}}{\*\x})"};
  const std::string_view inField[] = {R"(\trowd)",
                                      R"(\trowd{\*\bkmkstart _T1}{\*\bkmkend _T1})",
                                      R"(\sectd\cols2{\*\bkmkstart _T1})",
                                      R"(\pard\s1{\*\x{\z}})",
                                      R"(\page{\*\x}\plain)",
                                      R"({\field{\*\fldinst X}{\fldrslt\trowd{\*\q}}})",
                                      R"({\field{\*\fldinst X})",
                                      R"({\stylesheet{\s1 U;}}{\info y}\foo)",
                                      R"(\bin3 {b}{\bin5 12345}{\*\x\bin1 {}{\b\bin2 xy})",
                                      "{\\*\\x\x01\x7F\\\x02\\\t\\\n}\\\x7F"};
  for (const std::string_view head : heads) {
    for (const std::string_view words : inField) {
      for (const bool asResult : {false, true}) {
        std::string rtf = "{\\rtf1";
        rtf.append(head).append("{\\field{\\*\\fldinst TOC}");
        rtf.append(asResult ? "{\\fldrslt" : "").append(words).append(asResult ? "}}" : "}");
        rtf += "a\\par}";
        const Document document = Read(rtf);
        EXPECT_TRUE(TextOf(document).ends_with('a')) << rtf;
        EXPECT_EQ(LossOf(document), "") << rtf;
      }
    }
  }
}

TEST(Keeping, AFieldMeansTheSameWhereverAnEditPutsIt) {
  const std::string_view sources[] = {
      R"({\rtf1{\field{\sect{\*\fldinst X}}{\fldrslt abc}}})",
      R"({\rtf1{\field{\row\page{\*\fldinst X}}{\fldrslt abc}}})",
      R"({\rtf1 a\field{\*\fldinst X}}\*\fldinst Y}{\fldrslt b}c})"};
  for (const std::string_view source : sources) {
    Document document = Read(source);
    EXPECT_EQ(LossOf(document), "") << source;
    document.Replace(1, 1, PlainFragment(u"x", 0, 0));
    EXPECT_EQ(TextOf(Read(WriteRtf(document))), "axbc") << source;
  }
}

TEST(Keeping, ASelectionLeavesTheHeadAndItsNumbersBehind) {
  const Document document =
      Read(R"({\rtf1{\info{\title t}}\pard\s1\ls2\keep{\listtext 1.\tab}a\par})");
  const std::string part = WriteRtf(document, 0, document.Length());
  EXPECT_EQ(part.find("title"), part.npos);
  EXPECT_EQ(part.find("listtext"), part.npos);
  EXPECT_EQ(TextOf(Read(part, RtfTarget::Selection)), "1.\ta");
}

TEST(Keeping, AnEditLeavesTextOnItsPageAndInItsRow) {
  const struct {
    const char* source;
    Selection edited;
    const char16_t* put;
    const char* body;
  } cases[] = {
      {R"({\rtf1\trowd\cellx9\pard\intbl a\cell b\cell\row\pard c\par d})",
       {3, 5},
       u"",
       "\\f0\\fs24\\trowd\\cellx9 a\\tab bc\\par\r\nd\\par }\r\n"},
      {R"({\rtf1\trowd\cellx9\pard\intbl a\cell b\cell\row\pard c})",
       {0, 1},
       u"",
       "\\intbl\\f0\\fs24\\cell b\\cell\\trowd\\cellx9\\row\r\n\\pard c\\par }\r\n"},
      {R"({\rtf1\pard a\par\page b})", {3, 3}, u"x", "\\f0\\fs24 a\\par\r\n\\page xb\\par }\r\n"},
      {R"({\rtf1\pard a\page b})", {0, 1}, u"", "\\page\\f0\\fs24\\par\r\nb\\par }\r\n"}};
  for (const auto& c : cases) {
    Document document = Read(c.source);
    document.Replace(c.edited.start, c.edited.end,
                     PlainFragment(c.put, document.CharFormatAt(0), 0));
    const std::string written = WriteRtf(document);
    EXPECT_EQ(Body(written), c.body);
    EXPECT_EQ(TextOf(Read(written)), TextOf(document));
  }
}

TEST(Keeping, WhatAnEditLeavesOfANumberIsText) {
  const struct {
    Position at;
    const char16_t* put;
  } cases[] = {{0, u"x"}, {0, u"\n"}, {1, u"\n"}, {2, u"\nx"}, {3, u"\n"}};
  for (const auto& c : cases) {
    Document document = Read(R"({\rtf1\pard\ls1{\listtext 1.\tab}a\par{\listtext 2.\tab}b})");
    const CharId number = document.CharFormatAt(1);
    document.Replace(c.at, c.at, PlainFragment(c.put, number, document.ParaFormatAt(0)));
    EXPECT_EQ(TextOf(Read(WriteRtf(document))), TextOf(document)) << &c - cases;
  }
}

TEST(Keeping, LongSourcesComeInTheirTurn) {
  const std::string picture = "{\\pict\\wmetafile8 " + std::string(200'000, '0') + "}";
  EXPECT_EQ(LossOf(Read("{\\rtf1{\\info{\\title " + std::string(100'000, 't') + "}}a" + picture +
                        "b" + picture + picture + "c\\par d" + picture + "}")),
            "");
}

TEST(Keeping, WhatIsKeptStaysInProportionToItsSource) {
  const std::string_view kUnits[] = {"{\\*\\x\\page}", "{\\fldrslt}", "\\trowd\\cell\\row"};
  for (const std::string_view unit : kUnits) {
    std::string source = "{\\rtf1{\\field";
    for (int i = 0; i < 100'000; ++i) source += unit;
    EXPECT_LT(WriteRtf(Read(source)).size(), 4 * source.size());
  }
}

TEST(Keeping, WhatComesAgainAndAgainDoesNotFillTheTables) {
  constexpr std::uint32_t kMax = 20'000;
  const std::string_view kUnits[] = {"{\\xe}b", "\\trowd a", "{\\field{\\fldrslt a}}",
                                     "\\ls1{\\listtext 1}a\\par"};
  for (const std::string_view unit : kUnits) {
    std::string source = "{\\rtf1 ";
    for (int i = 0; i < 60'000; ++i) source += unit;
    const Document document = Read(source);
    EXPECT_LT(document.Formats().kept.Size(), kMax) << unit;
    EXPECT_LT(document.Formats().fields.Size(), kMax) << unit;
    EXPECT_EQ(LossOf(document), "") << unit;
  }
  std::string tabs = "{\\rtf1 ";
  for (int i = 0; i < 63; ++i) tabs += "\\tx" + std::to_string(i);
  for (int i = 64; i < 40'000; ++i) tabs += "{\\tx" + std::to_string(i) + "\\par}";
  EXPECT_LT(Read(tabs).Formats().tabs.Size(), 4'000u);
}

}  // namespace
}  // namespace lumenote
