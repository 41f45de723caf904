// The way into the RTF reader.
#include "rtf/read/Reader.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "rtf/read/Interpreter.h"

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

std::string_view WithoutBlanks(std::string_view bytes) {
  const std::size_t first = bytes.find_first_not_of(std::string_view(" \t\r\n\0", 5));
  return bytes.substr(std::min(first, bytes.size()));
}

/// The source from "\rtf" on, without what may stand before it and the brace that opens it; none
/// when the bytes are something else.
std::optional<std::string_view> Body(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  bytes = WithoutBlanks(bytes);
  if (!bytes.starts_with('{')) return {};
  bytes = WithoutBlanks(bytes.substr(1));
  if (StartsWith(bytes, "\\rtf") || StartsWith(bytes, "\\urtf")) return bytes;
  return {};
}

/// What reads the bytes.
Interpreter InterpreterOf(std::string_view bytes, FormatTables& formats, RtfTarget target,
                          const CharFormat& base, const FinalMark& note) {
  // No token yields more units than it has bytes, so this keeps every position in range.
  constexpr std::size_t kMax = std::numeric_limits<Position>::max();
  const std::optional<std::string_view> body = Body(bytes);
  const std::string_view source = body.value_or(bytes).substr(0, kMax);
  return Interpreter(source, target, formats, base, note, body ? 1 : 0);
}

}  // namespace

bool LooksLikeRtf(std::string_view bytes) { return Body(bytes).has_value(); }

Fragment ReadRtf(std::string_view bytes, FormatTables& formats, RtfTarget target, CharFormat base,
                 FinalMark note) {
  return InterpreterOf(bytes, formats, target, base, note).Read();
}

RtfNote ReadRtfNote(std::string_view bytes, FormatTables& formats, CharFormat base) {
  Interpreter interpreter = InterpreterOf(bytes, formats, RtfTarget::Document, base, {});
  Fragment content = interpreter.Read();
  return {std::move(content), interpreter.PlainFont()};
}

}  // namespace lumenote
