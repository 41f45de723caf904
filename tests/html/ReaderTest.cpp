// What becomes of HTML: characters, white space, formats, items.
#include <gtest/gtest.h>

#include "HtmlReading.h"
#include "base/DataFile.h"
#include "html/source/HtmlBytes.h"
#include "html/write/Writer.h"
#include "rtf/CheckRows.h"
#include "rtf/Reading.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

/// The text, with U+FFFC and the rest as they are; nothing is lost as RTF either.
std::string TextOfHtml(const std::string& html) {
  const Document note = ReadPage(html);
  EXPECT_EQ(LossOf(note), "") << html;
  return TextOf(note);
}

TEST(HtmlReader, Text) { CheckRows(DataFile("html_text.rows"), TextOfHtml); }

TEST(HtmlReader, Formats) {
  for (const auto& [html, formats] : Rows<2>(DataFile("html_formats.rows"), " => "))
    EXPECT_EQ(FormatsOf(ReadPage(html)), formats) << html;
}

TEST(HtmlReader, Selections) {
  constexpr std::string_view kRows =
      "<p>a<p>b => a¶b ¦ <p>a</p> => a ¦ a => a ¦ <ul><li>a<li>b</ul> => a¶b¶ ¦ <li>a => a\n"
      "<table><td>a<td>b</table> => a⇥b¶ ¦ <p>a</p><p><br></p> => a¶ ¦ \"\" => \"\"\n"
      "<html><body><!--StartFragment--><b>a</b><!--EndFragment--></body></html> => a";
  CheckRows(kRows,
            [](const std::string& html) { return TextOf(ReadPage(html, HtmlTarget::Selection)); });
}

TEST(HtmlReader, Bytes) {
  constexpr std::pair<std::string_view, char16_t> kRows[] = {
      {"\xEF\xBB\xBF<meta charset=windows-1251>\xC3\xA9", u'é'},
      {"\xE9", u'é'},
      {"\xC3\xA9", u'é'},
      {"<meta charset=utf-8>\xC3\xA9", u'é'},
      {"<META CONTENT='text/html; Charset=\"UTF-8\"'>\xFF", u'\uFFFD'},
      {"<meta charset=' Windows-1251 '>\xE9", u'й'},
      {"<title>\xE9</title><meta content=charset=shift_jis>\x83\x5C", u'ソ'},
      {"<!-- <meta charset=big5> --><meta charset=nonsense>\xE9", u'é'},
      {{"\xFF\xFE<\0a\0", 6}, u'a'},
      {"<meta charset=ISO-8859-15>\xA4", u'€'},
      {"<meta charset=koi8>\xD1", u'я'},
      {"<meta charset=x-euc-jp>\xA5\xBD", u'ソ'},
      {"<meta charset=GB18030>\xD2\xBB", u'一'},
      {"<meta charset=iso-8859-2x>\xE9", u'é'},
  };
  for (const auto& [bytes, last] : kRows) EXPECT_EQ(DecodeHtml(bytes).back(), last) << bytes;
}

/// `piece` until the source is long.
std::string Repeated(std::string_view piece) {
  std::string html;
  while (html.size() < 1'000'000) html += piece;
  return html;
}

// Work or memory by the square of the length would not end here.
TEST(HtmlHostile, CostsItsLengthOnly) {
  for (const std::string& piece : Split("<b>|<b>a<p>|<div>|<table><tr><td>|<td>a|<ul><li>|</p>|<a "
                                        "href=x>a|<!--|<!|<|&|&am|<a b=|"
                                        "<a b c d|<script><!--|<title>&amp;|<p "
                                        "style='a:(\"|<b><i></b></i>|<ol type=i><li>a|<textarea>",
                                        "|")) {
    const Document note = ReadPage(Repeated(piece));
    EXPECT_LT(note.Length(), 4'000'000) << piece;
    EXPECT_NE(WriteHtml(note), "") << piece;
  }
  const std::string link = "<a href=" + Repeated("x") + ">";
  const std::string font = "<font face=" + Repeated("x") + ">";
  EXPECT_LT(WriteHtml(ReadPage(link + Repeated("a<b>a</b>"))).size(), 4'000'000);
  for (const std::string& start : {link, font}) {
    const Document note = ReadPage(start + Repeated("<p>a"));
    EXPECT_LT(WriteRtf(note).size(), 10'000'000);
    EXPECT_LT(WriteHtml(note).size(), 30'000'000);
  }
  const std::string field =
      R"({\rtf1{\field{\*\fldinst HYPERLINK ")" + Repeated("x") + R"("}{\fldrslt )";
  EXPECT_LT(WriteHtml(Read(field + Repeated("a\\par ") + "}}}")).size(), 30'000'000);
}

}  // namespace
}  // namespace lumenote
