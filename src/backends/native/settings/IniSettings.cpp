// Reads and replaces the settings file.
#include "backends/native/settings/IniSettings.h"

#include <cstdint>
#include <ctime>

#include "backends/native/files/Disk.h"
#include "backends/native/files/FileLock.h"
#include "backends/native/saving/SaveFile.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

/// The content of a file, which may be missing.
IniText Load(const std::string& path) {
  return IniText(StatusOf(path) ? ReadWholeFile(path) : std::string());
}

}  // namespace

void IniSettings::Refresh() const {
  constexpr std::int64_t kSecond = 1'000'000'000;
  constexpr std::int64_t kSettled = 2;
  const FileStatus current = StatusOf(path_).value_or(FileStatus());
  if (current == known_) return;
  text_ = IniText();
  IgnoringErrors([&] { text_ = Load(path_); });
  // A file written just now may change again within the resolution of the file system's clock.
  known_.reset();
  if (current.time / kSecond + kSettled < std::time(nullptr)) known_ = current;
}

std::optional<std::u16string> IniSettings::Read(std::u16string_view application,
                                                std::u16string_view section,
                                                std::u16string_view key) const {
  Refresh();
  return text_.Find(application, section, key);
}

std::vector<std::optional<std::u16string>> IniSettings::ReadEach(
    std::u16string_view application, std::u16string_view section,
    const std::vector<std::u16string>& keys) const {
  Refresh();
  std::vector<std::optional<std::u16string>> values;
  values.reserve(keys.size());
  for (const std::u16string& key : keys) values.push_back(text_.Find(application, section, key));
  return values;
}

void IniSettings::Write(std::u16string_view application, std::u16string_view section,
                        std::u16string_view key, std::u16string_view value) {
  const bool stored = IgnoringErrors([&] { Store(application, section, key, value); });
  if (!stored) throw RuntimeError(ErrorNumber::PathAccess);
}

void IniSettings::Store(std::u16string_view application, std::u16string_view section,
                        std::u16string_view key, std::u16string_view value) const {
  if (path_.empty()) throw RuntimeError(ErrorNumber::PathNotFound);
  MakeFolders(ParentOf(path_));
  const FileLock lock(path_ + ".lock");
  IniText text = Load(path_);
  if (text.Find(application, section, key) == value) return;
  text.Set(application, section, key, value);
  ReplaceFile(path_, text.Bytes(), Permissions::UserOnly);
}

}  // namespace lumenote
