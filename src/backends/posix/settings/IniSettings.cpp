// Reads and replaces the settings file.
#include "backends/posix/settings/IniSettings.h"

#include <ctime>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <utility>

#include "backends/posix/files/Descriptor.h"
#include "backends/posix/files/FileLock.h"
#include "backends/posix/folders/UserFolders.h"
#include "backends/posix/saving/ReplaceFile.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

std::string UserSettingsPath() {
  const std::string folder = ConfigFolder();
  return folder.empty() ? folder : folder + "/lumenote/settings.ini";
}

/// The content of a file, which may be missing.
IniText Load(const std::string& path) {
  std::error_code ignored;
  return IniText(std::filesystem::exists(path, ignored) ? ReadWholeFile(path) : std::string());
}

}  // namespace

IniSettings::IniSettings() : IniSettings(UserSettingsPath()) {}

IniSettings::IniSettings(std::string path) : path_(std::move(path)) {}

IniSettings::Version IniSettings::CurrentVersion() const {
  struct stat info = {};
  if (stat(path_.c_str(), &info) != 0) return {};
  return {info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

void IniSettings::Refresh() const {
  constexpr std::int64_t kSettled = 2;
  const Version current = CurrentVersion();
  if (current == known_) return;
  text_ = IniText();
  IgnoringErrors([&] { text_ = Load(path_); });
  // A file written just now may change again within the resolution of the file system's clock.
  known_.reset();
  if (current.seconds + kSettled < std::time(nullptr)) known_ = current;
}

std::optional<std::u16string> IniSettings::Read(std::u16string_view application,
                                                std::u16string_view section,
                                                std::u16string_view key) const {
  Refresh();
  return text_.Find(application, section, key);
}

void IniSettings::Write(std::u16string_view application, std::u16string_view section,
                        std::u16string_view key, std::u16string_view value) {
  const bool stored = IgnoringErrors([&] { Store(application, section, key, value); });
  if (!stored) throw RuntimeError(ErrorNumber::PathAccess);
}

void IniSettings::Store(std::u16string_view application, std::u16string_view section,
                        std::u16string_view key, std::u16string_view value) const {
  constexpr mode_t kPrivate = 0600;
  if (path_.empty()) throw RuntimeError(ErrorNumber::PathNotFound);
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), ignored);
  const FileLock lock(path_ + ".lock");
  IniText text = Load(path_);
  if (text.Find(application, section, key) == value) return;
  text.Set(application, section, key, value);
  ReplaceFile(path_, text.Bytes(), kPrivate);
}

}  // namespace lumenote
