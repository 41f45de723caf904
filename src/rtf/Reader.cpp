// The way into the RTF reader.
#include "rtf/Reader.h"

#include <limits>

#include "rtf/Interpreter.h"

namespace lumenote {
namespace {

bool StartsWith(std::string_view bytes, std::string_view lowerCase) {
  if (bytes.size() < lowerCase.size()) return false;
  for (std::size_t i = 0; i < lowerCase.size(); ++i) {
    const char c = bytes[i];
    const char low = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    if (low != lowerCase[i]) return false;
  }
  return true;
}

}  // namespace

bool LooksLikeRtf(std::string_view bytes) {
  return StartsWith(bytes, "{\\rtf") || StartsWith(bytes, "{\\urtf");
}

Fragment ReadRtf(std::string_view bytes, FormatTables& formats, RtfTarget target, CharFormat base) {
  // No token yields more units than it has bytes, so this keeps every position in range.
  constexpr std::size_t kMost = std::numeric_limits<Position>::max();
  return Interpreter(bytes.substr(0, kMost), formats, base).Read(target);
}

}  // namespace lumenote
