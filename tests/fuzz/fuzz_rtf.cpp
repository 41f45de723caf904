// Any bytes: what is read is written as source that reads as the same text, and writing that again
// gives the same bytes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "rtf/Reader.h"
#include "rtf/Writer.h"

namespace {

using lumenote::Document;

Document Read(std::string_view rtf, lumenote::RtfTarget target) {
  Document document;
  document.Replace(0, 0, lumenote::ReadRtf(rtf, document.Formats(), target));
  return document;
}

void Check(bool holds) {
  if (!holds) std::abort();
}

void CheckDocument(std::string_view rtf) {
  const Document document = Read(rtf, lumenote::RtfTarget::Document);
  const std::string written = WriteRtf(document);
  const Document again = Read(written, lumenote::RtfTarget::Document);
  Check(again.Text(0, again.Length()) == document.Text(0, document.Length()));
  Check(WriteRtf(again) == written);
  for (const char c : written) Check(c > 0);
}

void CheckSelection(std::string_view rtf) {
  const Document document = Read(rtf, lumenote::RtfTarget::Selection);
  const lumenote::Position length = document.Length();
  const Document again = Read(WriteRtf(document, 0, length), lumenote::RtfTarget::Selection);
  Check(again.Text(0, again.Length()) == document.Text(0, length));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view rtf(reinterpret_cast<const char*>(data), size);
  CheckDocument(rtf);
  CheckSelection(rtf);
  return 0;
}
