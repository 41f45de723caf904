// Any bytes, read, written and read again: the same text, and from then on the same bytes. A part
// of the document, as the clipboard takes it, keeps its text too.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "rtf/Reading.h"
#include "rtf/write/Writer.h"

namespace {

using lumenote::Document;
using lumenote::Position;
using lumenote::RtfTarget;

void Check(bool holds) {
  if (!holds) std::abort();
}

void CheckPart(const Document& document, Position from, Position to) {
  const lumenote::Selection part = document.Outwards(from, to);
  const Document again =
      lumenote::Read(WriteRtf(document, part.start, part.end), RtfTarget::Selection);
  Check(again.Text(0, again.Length()) == document.Text(part.start, part.end));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Document document = lumenote::Read({reinterpret_cast<const char*>(data), size});
  Check(lumenote::LossOf(document).empty());
  const Position third = document.Length() / 3;
  CheckPart(document, third, document.Length() - third);
  return 0;
}
