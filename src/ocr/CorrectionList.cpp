#include "ocr/CorrectionList.h"

#include <algorithm>
#include <limits>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Windows1252.h"
#include "platform/Files.h"

namespace lumenote {

namespace {

constexpr std::string_view kSeparator = "=:=";
constexpr std::size_t kLongestLine = std::numeric_limits<std::int16_t>::max();

[[noreturn]] void Refuse(ErrorNumber number, std::int64_t line) {
  throw RuntimeError(
      number, RuntimeError(number).Description() + u"\r\nListCorr.txt, ligne " + NumberText(line));
}

}  // namespace

std::string_view CorrectionReader::TakeLine() {
  const std::size_t end = std::min(rest_.find('\n'), rest_.size());
  std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(std::min(end + 1, rest_.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  ++line_;
  return line;
}

std::optional<Correction> CorrectionReader::Next() {
  if (rest_.empty()) return {};
  const std::string_view line = TakeLine();
  const std::size_t separator = line.find(kSeparator);
  if (separator == std::string_view::npos) Refuse(ErrorNumber::InvalidArgument, line_);
  if (line.size() > kLongestLine) Refuse(ErrorNumber::Overflow, line_);
  return Correction{Decode1252(line.substr(0, separator)),
                    Decode1252(line.substr(separator + kSeparator.size()))};
}

void AppendCorrection(Files& files, std::u16string_view path, std::u16string_view wrong,
                      std::u16string_view right) {
  if (!Fits1252(wrong) || !Fits1252(right)) throw RuntimeError(ErrorNumber::InvalidArgument);
  files.AppendLines(path, Encode1252(wrong).append(kSeparator) + Encode1252(right) + "\r\n");
}

}  // namespace lumenote
