// What is written as HTML, and that it reads back.
#include <filesystem>
#include <gtest/gtest.h>

#include "HtmlReading.h"
#include "base/DataFile.h"
#include "html/write/Writer.h"
#include "rtf/CheckRows.h"
#include "rtf/Reading.h"

namespace lumenote {
namespace {

std::string Body(const Document& document) {
  const std::string page = WriteHtml(document);
  return Split(Split(page, "<body>\n").at(1), "\n</body>").at(0);
}

/// The document, written and read again; from then on its bytes stay.
Document Again(const Document& note) {
  Document again = ReadPage(WriteHtml(note));
  const std::string written = WriteHtml(again);
  EXPECT_EQ(WriteHtml(ReadPage(written)), written);
  return again;
}

TEST(HtmlWriter, WritesAs) {
  constexpr std::string_view kPlain = "<p style=\"margin-top:0pt;margin-bottom:0pt;\">";
  const auto body = [&](std::string html) {
    return Replaced(Replaced(Body(ReadPage(html)), kPlain, "◊"), "\n", "␊");
  };
  for (const auto& [html, written] : Rows<2>(DataFile("html_writer.rows"), " => "))
    EXPECT_EQ(body(Replaced(html, "⇥", "\t")), written) << html;
}

/// What is written of an RTF body, from its first paragraph's text on.
std::string BodyOfRtf(const std::string& rtf) {
  const std::string body = Body(Read(rtf));
  return body.substr(body.find('>') + 1);
}

TEST(HtmlWriter, WritesRtfAs) {
  constexpr std::string_view kLook = "<span style=\"color:windowtext;text-decoration:none;\">";
  const auto body = [&](const std::string& rtf) {
    return Replaced(Replaced(BodyOfRtf(rtf), kLook, "<◊>"), "\n", "␊");
  };
  CheckRows(DataFile("html_of_rtf.rows"), body, "{\\rtf1 ", "}");
}

TEST(HtmlWriter, ReadsBackWhatItWrites) {
  for (const auto& [html, formats] : Rows<2>(DataFile("html_formats.rows"), " => "))
    EXPECT_EQ(FormatsOf(Again(ReadPage(html))), FormatsOf(ReadPage(html))) << html;
  for (const auto& [html, text] : Rows<2>(DataFile("html_text.rows"), " => "))
    EXPECT_EQ(TextOf(Again(ReadPage(html))), TextOf(ReadPage(html))) << html;
}

/// Without what HTML cannot hold.
std::string Bare(std::string_view text) {
  std::string bare;
  for (const char c : Replaced(text, "\uFFFC", ""))
    if (c >= ' ' || c < 0 || c == '\n' || c == '\t' || c == '\v') bare += c;
  return Replaced(bare, "\x7F", "");
}

TEST(HtmlWriter, KeepsTheTextOfNotes) {
  for (const auto& entry : std::filesystem::directory_iterator(LUMENOTE_TEST_DATA)) {
    if (entry.path().extension() != ".rtf") continue;
    const Document note = Read(DataFile(entry.path().filename().string()));
    EXPECT_EQ(Bare(TextOf(Again(note))), Bare(TextOf(note))) << entry.path();
  }
}

}  // namespace
}  // namespace lumenote
