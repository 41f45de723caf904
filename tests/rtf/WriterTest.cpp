// The exact source that documents are written as.
#include <gtest/gtest.h>

#include "Reading.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

constexpr std::string_view kHead =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1036{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}";
constexpr std::string_view kBody = "\\viewkind4\\uc1\\pard";

/// Reads `body` in Arial 10 behind the usual head, with `tables` between the two.
Document Note(std::string_view body, std::string_view tables = "") {
  std::string rtf(kHead);
  rtf.append("}").append(tables).append("\\fs20 ").append(body).append("}");
  return Read(rtf);
}

/// What the document is written as, behind the head.
std::string BodyOf(const Document& document) {
  const std::string rtf = WriteRtf(document);
  EXPECT_EQ(rtf.substr(0, kHead.size()), kHead);
  const std::size_t at = rtf.find(kBody);
  return at == rtf.npos ? rtf : rtf.substr(at + kBody.size());
}

class WriterTable : public testing::TestWithParam<Case> {};
TEST_P(WriterTable, Writes) { EXPECT_EQ(BodyOf(Note(GetParam().rtf)), GetParam().expected); }
INSTANTIATE_TEST_SUITE_P(
    Bodies, WriterTable,
    testing::Values(
        Case{R"(\par)", "\\f0\\fs20\\par }\r\n"},
        Case{R"(a\par b\par)", "\\f0\\fs20 a\\par\r\nb\\par }\r\n"},
        Case{R"(\'e9\u1046?\u-10179?\u-8704?\{\}\\)",
             "\\f0\\fs20\\'e9\\u1046?\\u-10179?\\u-8704?\\{\\}\\\\\\par }\r\n"},
        Case{R"(\tab a\line b\~c\-d\_e)", "\\f0\\fs20\\tab a\\line b\\~c\\-d\\_e\\par }\r\n"},
        Case{R"(a{\b b}{\i\ul c}\up15 d\dn5 e)",
             "\\f0\\fs20 a\\b b\\b0\\i\\ul c\\i0\\ulnone\\up15 d\\dn5 e\\par }\r\n"},
        Case{R"(a\par\qc b\par c\par\pard\li300\fi-100\sl276\slmult1\tqc\tx700 d)",
             "\\f0\\fs20 a\\par\r\n\\pard\\qc b\\par\r\nc\\par\r\n"
             "\\pard\\fi-100\\li300\\sl276\\slmult1\\tqc\\tx700 d\\par }\r\n"},
        Case{R"(x{\*\shppict{\pict 01}}y)", "\\f0\\fs20 x{\\*\\shppict{\\pict 01}}y\\par }\r\n"},
        Case{R"(\'01\'7f\u0?\u65535?)", "\\f0\\fs20\\'01\\'7f\\u0?\\u-1?\\par }\r\n"}));

TEST(Writer, WritesTheFontsAndColoursInUse) {
  const Document document = Note(
      R"(a\cf2 b\f3\highlight1 c\f4\'b7\u97? d)",
      R"({\colortbl;\red1;\green2;\blue3;}{\fonttbl{\f3\fmodern\fprq1\fcharset204 C\u1046?\'3b;}{\f4\fcharset2 Symbol;}})");
  EXPECT_EQ(
      WriteRtf(document),
      std::string(kHead).append(
          "{\\f1\\fmodern\\fprq1\\fcharset204 C\\u1046?\\'3b;}{\\f2\\fnil\\fcharset2 Symbol;}}\r\n"
          "{\\colortbl ;\\red0\\green2\\blue0;\\red1\\green0\\blue0;}\r\n"
          "\\viewkind4\\uc1\\pard\\f0\\fs20 a\\cf1 b\\highlight2\\f1 c\\f2\\'b7\\u97? \\'64"
          "\\par }\r\n"));
}

TEST(Writer, WritesBulletsWithTheirMarker) {
  const Document document = Note(R"(a\par{\*\pn\pnlvlblt}\fi-360\li360 b\par\f0 c\par\par\pard d)");
  EXPECT_EQ(WriteRtf(document),
            std::string(kHead).append(
                "{\\f1\\fnil\\fcharset2 Symbol;}}\r\n\\viewkind4\\uc1\\pard\\f0\\fs20 a\\par\r\n"
                "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}"
                "\\fi-360\\li360 b\\par\r\n{\\pntext\\f1\\'B7\\tab}c\\par\r\n"
                "{\\pntext\\f1\\'B7\\tab}\\par\r\n\\pard d\\par }\r\n"));
}

TEST(Writer, WritesASelectionWithoutAFinalParagraph) {
  const Document document = Note(R"(ab\par\qc\b cd\b0\par)");
  const auto body = [&](Position from, Position to) {
    const std::string rtf = WriteRtf(document, from, to);
    return rtf.substr(rtf.find(kBody) + kBody.size());
  };
  EXPECT_EQ(body(1, 5), "\\f0\\fs20 b\\par\r\n\\pard\\qc\\b c}\r\n");
  EXPECT_EQ(body(0, 4), "\\f0\\fs20 ab\\par\r\n}\r\n");
  EXPECT_EQ(body(4, 5), "\\qc\\b\\f0\\fs20 c}\r\n");
  EXPECT_EQ(body(1, 1), "}\r\n");
}

TEST(Writer, RoundsOffsetsAwayFromZero) {
  Document document;
  CharFormat format{.offset = 15};
  const CharId up = document.Formats().characters.Intern(format);
  format.offset = -11;
  const CharId down = document.Formats().characters.Intern(format);
  FragmentBuilder builder;
  builder.Append(u"a", up);
  builder.Append(u"b", down);
  document.Replace(0, 0, builder.Finish());
  EXPECT_NE(WriteRtf(document).find("\\up2\\f0\\fs20 a\\dn2 b"), std::string::npos);
}

}  // namespace
}  // namespace lumenote
