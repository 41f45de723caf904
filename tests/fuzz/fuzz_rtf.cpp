// Any bytes as RTF, as a note and as a part to put into one: both hold the same text, and no more
// than there can be.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "rtf/Reading.h"

namespace {

std::u16string TextOf(std::string_view rtf, lumenote::RtfTarget target) {
  const lumenote::Document document = lumenote::Read(rtf, target);
  return document.Text(0, document.Length());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view rtf(reinterpret_cast<const char*>(data), size);
  const std::u16string note = TextOf(rtf, lumenote::RtfTarget::Document);
  const std::u16string part = TextOf(rtf, lumenote::RtfTarget::Selection);
  if (part != note && part != note + u"\r\n") std::abort();
  if (part.size() > 2 * size) std::abort();
  return 0;
}
