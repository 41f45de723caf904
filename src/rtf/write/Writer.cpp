// Writes RTF in one go.
#include "rtf/write/Writer.h"

#include "rtf/write/RtfWriter.h"

namespace lumenote {
namespace {

void WriteText(const Document& document, Selection range, std::optional<FinalMark> mark,
               const ByteSink& sink) {
  RtfWriter writing(document, range, mark, sink);
  while (writing.Step(LeafList::kMax)) continue;
}

std::string Written(const Document& document, Selection range, std::optional<FinalMark> mark) {
  std::string source;
  WriteText(document, range, mark, [&](std::string_view piece) { source += piece; });
  return source;
}

}  // namespace

void WriteRtf(const Document& document, const ByteSink& sink) {
  WriteText(document, {0, document.Length()}, document.Mark(), sink);
}

std::string WriteRtf(const Document& document) {
  return Written(document, {0, document.Length()}, document.Mark());
}

std::string WriteRtf(const Document& document, Position from, Position to) {
  return Written(document, {from, to}, std::nullopt);
}

}  // namespace lumenote
