// Any bytes as a correction list: each pair is read or refused with a run-time error, and written
// again reads as the same pair.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/RuntimeError.h"
#include "base/Windows1252.h"
#include "ocr/CorrectionList.h"

namespace {

using lumenote::Encode1252;

void CheckAgain(const lumenote::Correction& pair) {
  const std::string line = Encode1252(pair.wrong) + "=:=" + Encode1252(pair.right) + "\r\n";
  lumenote::CorrectionReader again(line);
  if (again.Next() != pair || again.Next()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lumenote::CorrectionReader reader({reinterpret_cast<const char*>(data), size});
  try {
    while (const auto pair = reader.Next()) CheckAgain(*pair);
  } catch (const lumenote::RuntimeError&) {
  }
  return 0;
}
