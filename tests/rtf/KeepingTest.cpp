// What the editor does not show comes through reading, editing and writing.
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

#include "CheckRows.h"
#include "Reading.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

/// What stands behind the head of the source, up to its last line end.
std::string Body(const std::string& rtf) {
  constexpr std::string_view kHead = "\\viewkind4\\uc1\\pard";
  const std::size_t at = rtf.find(kHead) + kHead.size();
  return rtf.substr(at, rtf.size() - 2 - at);
}

std::string Rewritten(const std::string& rtf) {
  const std::string written = WriteRtf(Read(rtf));
  EXPECT_EQ(WriteRtf(Read(written)), written);
  return written;
}

TEST(Keeping, WritesWhatItRead) {
  const auto rewritten = [](const std::string& rtf) { return Body(Rewritten(rtf)); };
  CheckRows(DataFile("writer.rows"), rewritten, "{\\rtf1 ", "}");
}

// "~" is how a source usually begins.
TEST(Keeping, WritesTheHeadItReadOrOneOfWhatIsInUse) {
  const auto whole = [](const std::string& rtf) {
    return Replaced(Rewritten(rtf), "{\\rtf1\\ansi\\ansicpg1252", "~");
  };
  CheckRows(DataFile("heads.rows"), whole, "{\\rtf1 ", "}");
}

TEST(Keeping, DamagedGroupsAreClosed) {
  const auto body = [](std::string_view rtf) { return Body(WriteRtf(Read(rtf))); };
  EXPECT_EQ(body("{\\rtf1{\\pict\\bin4 \xE9}{\\\xE8}}"), "{\\pict\r\ne97d7b5c\\'e8}\\par }");
  EXPECT_EQ(body("{\\rtf1{\\object{\\result x"), "{\\object{\\result x}}\\par }");
  EXPECT_EQ(body("{\\rtf1{\\object a\\'e"), "{\\object a}\\par }");
}

TEST(Keeping, FieldsThatBeginANoteKeepItsText) {
  const auto heads =
      Split(R"( ¦ {\fonttbl{\f0 Arial;}} ¦ {\fonttbl{\f0 Arial;}}{\info{\title T}} ¦ )"
            R"({\stylesheet{\s1 T;}}\paperw9\foo1 ¦ )"
            R"({\*\bkmkstart h}{\*\bkmkend h}\sectd\cols2 ¦ )"
            R"({\header h}{\info x}\ls1{\listtext\tab}{\*\y} ¦ )"
            R"({\listtext{\*\listtable{\list\listid1}}}{\*\x})",
            " ¦ ");
  const auto inField =
      Split(R"(\trowd ¦ \trowd{\*\bkmkstart _T1}{\*\bkmkend _T1} ¦ )"
            R"(\sectd\cols2{\*\bkmkstart _T1} ¦ \pard\s1{\*\x{\z}} ¦ )"
            R"(\page{\*\x}\plain ¦ {\field{\*\fldinst X}{\fldrslt\trowd{\*\q}}} ¦ )"
            R"({\field{\*\fldinst X} ¦ {\stylesheet{\s1 U;}}{\info y}\foo ¦ )"
            R"(\bin3 {b}{\bin5 12345}{\*\x\bin1 {}{\b\bin2 xy} ¦ )"
            "{\\*\\x\x01\x7F\\\x02\\\t\\\n}\\\x7F",
            " ¦ ");
  for (const std::string& head : heads) {
    for (const std::string& words : inField) {
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
  const std::string_view sources[] = {R"({\rtf1{\field{\sect{\*\fldinst X}}{\fldrslt abc}}})",
                                      R"({\rtf1{\field{\row\page{\*\fldinst X}}{\fldrslt abc}}})",
                                      R"({\rtf1 a\field{\*\fldinst X}}\*\fldinst Y}{\fldrslt b}c})",
                                      "{\\rtf1{\\field\\u\x12{\\fldrslt abc}}}",
                                      "{\\rtf1{\\field{\\*\\fldinst X\\\xAD}{\\fldrslt abc}}}"};
  for (const std::string_view source : sources) {
    Document document = Read(source);
    EXPECT_EQ(LossOf(document), "") << source;
    document.Replace(1, 1, PlainFragment(u"x", 0, 0));
    EXPECT_EQ(TextOf(Read(WriteRtf(document))), "axbc") << source;
  }
}

TEST(Keeping, ASelectionIsWrittenWithoutAFinalParagraph) {
  const Document document = Read(R"({\rtf1 ab\par\qc\b cd\b0\par})");
  const auto body = [&](Position from, Position to) { return Body(WriteRtf(document, from, to)); };
  EXPECT_EQ(body(1, 5), " b\\par\r\n\\pard\\qc\\b c}");
  EXPECT_EQ(body(0, 4), " ab\\par\r\n}");
  EXPECT_EQ(body(4, 5), "\\qc\\b c}");
  EXPECT_EQ(body(1, 1), "}");
}

TEST(Keeping, ASelectionCarriesTheStylesAndListsThatItNames) {
  const Document document =
      Read(R"({\rtf1{\stylesheet{\s1\sbasedon2 A;}{\s2 B;}{\s3 C;}}{\info{\title t}})"
           R"({\*\listtable{\list\listid4}{\list\listid5}})"
           R"({\*\listoverridetable{\listoverride\listid4\ls1}{\listoverride\listid5\ls2}})"
           R"(\pard\s1\ls2\keep{\listtext 1.\tab}a\par\pard\ls9{\listtext 2.\tab}b\par})");
  const std::string part = WriteRtf(document, 0, document.Length());
  const std::string head = part.substr(0, part.find("\\viewkind4"));
  for (const std::string_view kept : {"\\s1", "\\s2 B", "\\listid5", "\\ls2"})
    EXPECT_NE(head.find(kept), head.npos) << kept << head;
  for (const std::string_view left : {"C;", "title", "\\listid4", "\\ls1", "\\ls9"})
    EXPECT_EQ(part.find(left), part.npos) << left << part;
  EXPECT_EQ(TextOf(Read(part, RtfTarget::Selection)), "1.\ta\n2.\tb");
}

TEST(Keeping, WhatIsPastedGetsTheNumbersOfTheNote) {
  for (const auto& [source, part, expected] : Rows<3>(DataFile("pasting.rows"), " => ")) {
    Document note = Read("{\\rtf1" + source + "\\par}");
    for (int times = 0; times < 3; ++times) {
      Fragment pasted =
          ReadRtf("{\\rtf1" + part + "}", note.Formats(), RtfTarget::Selection, {}, note.Mark());
      EXPECT_TRUE(times == 0 || !pasted.mark) << part;
      note.Replace(0, note.Length(), std::move(pasted));
    }
    EXPECT_EQ(Replaced(Replaced(WriteRtf(note), "\r\n", ""), "{\\rtf1\\ansi\\ansicpg1252", "~"),
              expected)
        << source;
    EXPECT_EQ(LossOf(note), "") << source;
  }
}

TEST(Keeping, AnEditLeavesTextOnItsPageAndInItsRow) {
  const auto edited = [](const std::string& row) {
    std::istringstream words(row);
    Position from = 0, to = 0;
    std::string put, note;
    words >> from >> to >> put;
    std::getline(words, note);
    Document document = Read("{\\rtf1" + note + "}");
    const std::u16string text = put == "-" ? u"" : FromUtf8(put);
    document.Replace(from, to, PlainFragment(text, document.CharFormatAt(0), 0));
    const std::string written = WriteRtf(document);
    EXPECT_EQ(TextOf(Read(written)), TextOf(document));
    return Body(written);
  };
  CheckRows(DataFile("edits.rows"), edited);
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
  std::string items;
  for (int i = 0; i < 600; ++i) items += "{\\*\\bkmkstart k}{\\*\\x}";
  EXPECT_EQ(Body(Rewritten("{\\rtf1 a" + items + "b}")), " a" + items + "b\\par }");
  const std::string picture = "{\\pict\\wmetafile8 " + std::string(200'000, '0') + "}";
  EXPECT_EQ(LossOf(Read("{\\rtf1{\\info{\\title " + std::string(100'000, 't') + "}}a" + picture +
                        "b" + picture + picture + "c\\par d" + picture + "}")),
            "");
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
