#include "backends/posix/settings/IniRegistry.h"

#include <cstdlib>
#include <sstream>

#include "backends/posix/files/Descriptor.h"
#include "backends/posix/folders/UserFolders.h"
#include "backends/posix/settings/IniText.h"
#include "base/Characters.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

constexpr std::u16string_view kMachine = u"machine";

std::vector<std::string> RegistryFiles() {
  constexpr const char* kName = "/lumenote/registry.ini";
  std::vector<std::string> files;
  if (!ConfigFolder().empty()) files.push_back(ConfigFolder() + kName);
  const char* chosen = std::getenv("XDG_CONFIG_DIRS");
  std::istringstream folders(chosen && *chosen ? chosen : "/etc/xdg");
  for (std::string folder; std::getline(folders, folder, ':');)
    if (folder.starts_with('/')) files.push_back(folder + kName);
  return files;
}

/// The content of a file with its section headers in lower case.
std::string WithLowerCaseHeaders(const std::string& bytes) {
  std::istringstream lines(bytes);
  std::string out;
  for (std::string line; std::getline(lines, line); out += '\n')
    out += line.starts_with('[') ? ToUtf8(Lower(FromUtf8(line))) : line;
  return out;
}

}  // namespace

IniRegistry::IniRegistry() : IniRegistry(RegistryFiles()) {}

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
