// Finds the user's folders in the environment and in user-dirs.dirs.
#include "backends/posix/folders/UserFolders.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <sstream>
#include <string_view>
#include <system_error>
#include <unistd.h>

#include "backends/native/files/Disk.h"
#include "backends/native/folders/UserFolders.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

/// The base-directory rules ignore relative values.
std::string AbsoluteVariable(const char* name) {
  const char* value = std::getenv(name);
  std::string folder = value && value[0] == '/' ? value : "";
  while (folder.ends_with('/')) folder.pop_back();
  return folder;
}

std::string VariableOrHomeBased(const char* variable, const char* belowHome) {
  std::string folder = AbsoluteVariable(variable);
  if (folder.empty() && !HomeFolder().empty()) folder = HomeFolder() + belowHome;
  return folder;
}

bool IsFolder(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_directory(path, ignored);
}

/// The text up to a closing double quote, with backslash escapes resolved.
std::string Unquoted(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size() && text[i] != '"'; ++i) {
    if (text[i] == '\\' && i + 1 < text.size()) ++i;
    out += text[i];
  }
  return out;
}

/// A value of user-dirs.dirs as a folder: absolute, or relative to the home folder; else empty.
std::string Expanded(std::string value) {
  constexpr std::string_view kHome = "$HOME/";
  if (value.starts_with(kHome)) value.replace(0, kHome.size() - 1, HomeFolder());
  while (value.ends_with('/')) value.pop_back();
  return value.starts_with('/') ? value : std::string();
}

/// The folder set by a line like XDG_DOCUMENTS_DIR="$HOME/Texte", if any.
std::string ConfiguredDocuments(const std::string& lines) {
  constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=\"";
  std::istringstream stream(lines);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with(kKey)) return Expanded(Unquoted(line.substr(kKey.size())));
  }
  return {};
}

}  // namespace

std::string HomeFolder() {
  std::string home = AbsoluteVariable("HOME");
  if (!home.empty()) return home;
  const struct passwd* user = getpwuid(getuid());
  return user && user->pw_dir && user->pw_dir[0] == '/' ? user->pw_dir : "";
}

std::string DataFolder() { return VariableOrHomeBased("XDG_DATA_HOME", "/.local/share"); }

std::string ConfigFolder() { return VariableOrHomeBased("XDG_CONFIG_HOME", "/.config"); }

std::string SettingsFile() {
  const std::string folder = ConfigFolder();
  return folder.empty() ? folder : folder + "/lumenote/settings.ini";
}

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

/// $XDG_STATE_HOME/lumenote, else .local/state/lumenote in the home folder.
std::string ComponentStateFolder() {
  const std::string folder = VariableOrHomeBased("XDG_STATE_HOME", "/.local/state");
  return folder.empty() ? folder : folder + "/lumenote";
}

std::vector<std::string> TemporaryParents() {
  const std::string chosen = AbsoluteVariable("TMPDIR");
  return chosen.empty() ? std::vector<std::string>{"/tmp"}
                        : std::vector<std::string>{chosen, "/tmp"};
}

/// The folder set in user-dirs.dirs, else Documents in the home folder, else the home folder; the
/// first one that exists.
std::string DocumentsFolder() {
  std::string lines;
  IgnoringErrors([&] { lines = ReadWholeFile(ConfigFolder() + "/user-dirs.dirs"); });
  const std::string home = HomeFolder();
  for (const std::string& folder : {ConfiguredDocuments(lines), home + "/Documents", home}) {
    if (IsFolder(folder)) return folder;
  }
  return {};
}

}  // namespace lumenote
