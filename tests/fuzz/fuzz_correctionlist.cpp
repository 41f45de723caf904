// Any bytes as a correction list: each pair is read or refused with a run-time error, and written
// again reads as the same pair.
#include "Target.h"
#include "base/RuntimeError.h"
#include "base/Windows1252.h"
#include "ocr/CorrectionList.h"

using namespace lumenote;

static void CheckAgain(const Correction& pair) {
  const std::string line = Encode1252(pair.wrong) + "=:=" + Encode1252(pair.right) + "\r\n";
  CorrectionReader again(line);
  Check(again.Next() == pair && !again.Next());
}

void Try(std::string_view bytes) {
  CorrectionReader reader(bytes);
  try {
    while (const auto pair = reader.Next()) CheckAgain(*pair);
  } catch (const RuntimeError&) {
  }
}
