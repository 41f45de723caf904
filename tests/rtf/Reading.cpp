#include "Reading.h"

#include "base/Strings.h"
#include "rtf/write/RtfWriter.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

std::string WrittenBitByBit(const Document& document) {
  std::string written;
  const ByteSink sink = [&](std::string_view piece) { written += piece; };
  RtfWriter writing(document, {0, document.Length()}, document.Mark(), sink);
  while (writing.Step(3)) continue;
  return written;
}

}  // namespace

Document Read(std::string_view rtf, RtfTarget target, CharFormat base) {
  Document document;
  document.Replace(0, 0, ReadRtf(rtf, document.Formats(), target, base));
  return document;
}

std::string TextOf(const Document& document) {
  return ToUtf8(ReplaceEvery(document.Text(0, document.Length()), u"\r\n", u"\n"));
}

std::string LossOf(const Document& document) {
  const std::string written = WriteRtf(document);
  const Document again = Read(written);
  if (again.Text(0, again.Length()) != document.Text(0, document.Length()))
    return "text: " + TextOf(again);
  const std::string rewritten = WriteRtf(again);
  if (rewritten != written) return "bytes: " + written + "became: " + rewritten;
  if (WrittenBitByBit(document) != written) return "bit by bit: " + WrittenBitByBit(document);
  for (std::size_t i = 0; i < written.size(); ++i) {
    const char c = written[i];
    const bool ofLineEnd =
        (c == '\r' && written[i + 1] == '\n') || (c == '\n' && written[i - 1] == '\r');
    if (!ofLineEnd && (c < ' ' || c > '~')) return "ASCII: " + written;
  }
  return {};
}

}  // namespace lumenote
