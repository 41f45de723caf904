// Any bytes as HTML, as a note and as a part to put into one: both hold the same text, and no more
// than there can be. Written as RTF and as HTML and read again, it keeps its text, and from then
// on its bytes.
#include "Target.h"
#include "html/HtmlReading.h"
#include "html/write/Writer.h"
#include "rtf/Reading.h"

using namespace lumenote;

void Try(std::string_view html) {
  const Document note = ReadPage(html);
  const std::string text = TextOf(note);
  const std::string part = TextOf(ReadPage(html, HtmlTarget::Selection));
  Check(part == text || part == text + "\n");
  Check(static_cast<std::size_t>(note.Length()) <= 16 * html.size() + 16);
  Check(LossOf(note).empty());
  const Document again = ReadPage(WriteHtml(note));
  Check(TextOf(again) == text);
  const std::string written = WriteHtml(again);
  Check(WriteHtml(ReadPage(written)) == written);
}
