// Any bytes as RTF, as a note and as a part to put into one: both hold the same text, and no more
// than there can be. Written and read again, whole and in part as the clipboard takes it, they keep
// their text, and from then on their bytes.
#include "Target.h"
#include "rtf/Reading.h"
#include "rtf/write/Writer.h"

namespace {

using namespace lumenote;

std::u16string UnitsOf(const Document& document) { return document.Text(0, document.Length()); }

void CheckPart(const Document& document, Position from, Position to) {
  const Selection part = document.SnapOutward(from, to);
  const Document again = Read(WriteRtf(document, part.start, part.end), RtfTarget::Selection);
  Check(UnitsOf(again) == document.Text(part.start, part.end));
}

}  // namespace

void Try(std::string_view rtf) {
  const Document note = Read(rtf);
  const std::u16string part = UnitsOf(Read(rtf, RtfTarget::Selection));
  Check(part == UnitsOf(note) || part == UnitsOf(note) + u"\r\n");
  Check(part.size() <= 2 * rtf.size());
  Check(LossOf(note).empty());
  const Position third = note.Length() / 3;
  CheckPart(note, third, note.Length() - third);
}
