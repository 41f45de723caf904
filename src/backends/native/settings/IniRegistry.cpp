#include "backends/native/settings/IniRegistry.h"

#include <sstream>

#include "backends/native/files/Disk.h"
#include "backends/native/settings/IniText.h"
#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kMachine = u"machine";

/// The content of a file with its section headers in lower case.
std::string WithLowerCaseHeaders(const std::string& bytes) {
  std::istringstream lines(bytes);
  std::string out;
  for (std::string line; std::getline(lines, line); out += '\n')
    out += line.starts_with('[') ? ToUtf8(Lower(FromUtf8(line))) : line;
  return out;
}

}  // namespace

std::optional<std::u16string> IniRegistry::Read(std::u16string_view key,
                                                std::u16string_view name) const {
  for (const std::string& file : files_) {
    std::string bytes;
    IgnoringErrors([&] { bytes = WithLowerCaseHeaders(ReadWholeFile(file)); });
    if (auto value = IniText(bytes).Find(kMachine, Lower(key), name)) return value;
  }
  return std::nullopt;
}

}  // namespace lumenote
