// The folders of a sandbox, and what scripts do to its files.
#include "pilot/posix/PosixSandbox.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>

#include "backends/posix/files/Errors.h"
#include "base/Characters.h"
#include "base/Strings.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

constexpr std::u16string_view kRegistry = u"Machine";

/// Creates the drive with its folders and returns its native path.
std::string MakeDrive(const std::string& root) {
  constexpr std::array kFolders{"Temp", "Documents", "Program Files", "Lumenote"};
  if (root.empty()) throw RuntimeError(ErrorNumber::PathAccess);
  const fs::path drive = fs::path(root) / "c";
  for (const char* folder : kFolders) {
    std::error_code error;
    fs::create_directories(drive / folder, error);
    if (error) throw RuntimeError(ErrorNumber::PathAccess);
  }
  return drive.string();
}

void Check(const std::error_code& error, const std::string& path) {
  if (error) throw RemovalError(error.value(), path);
}

void RequireFile(const std::string& path) {
  std::error_code ignored;
  if (!fs::is_regular_file(path, ignored)) throw RuntimeError(ErrorNumber::FileNotFound);
}

}  // namespace

PosixSandbox::PosixSandbox() : PosixSandbox(std::make_unique<TemporaryFolder>()) {}

PosixSandbox::PosixSandbox(std::unique_ptr<TemporaryFolder> own) : PosixSandbox(own->Path()) {
  own_ = std::move(own);
}

PosixSandbox::PosixSandbox(const std::string& root)
    : drives_(MakeDrive(root)),
      state_(root + "/state", drives_),
      files_(drives_, &state_),
      folders_(u"C:\\Documents", u"C:\\Temp\\"),
      settings_(root + "/settings.ini"),
      registry_({root + "/registry.ini"}),
      registryFile_(root + "/registry.ini"),
      programs_(files_) {}

void PosixSandbox::WriteRegistry(std::u16string_view key, std::u16string_view name,
                                 std::u16string_view value) {
  registryFile_.Write(kRegistry, Lower(key), name, value);
}

void PosixSandbox::MakeParents(std::u16string_view path) {
  const fs::path native = drives_.ToNative(path);
  std::error_code error;
  fs::create_directories(native.parent_path(), error);
  if (error) throw RuntimeError(ErrorNumber::PathAccess);
}

std::vector<std::u16string> PosixSandbox::List(std::u16string_view folder) const {
  std::error_code error;
  std::vector<std::u16string> names;
  for (fs::directory_iterator entry(drives_.ToNative(folder), error), end; !error && entry != end;
       entry.increment(error)) {
    names.push_back(FromUtf8(entry->path().filename().string()));
  }
  if (error) throw RuntimeError(ErrorNumber::PathNotFound);
  std::sort(names.begin(), names.end());
  return names;
}

void PosixSandbox::Remove(std::u16string_view path) {
  const std::string native = drives_.ToNative(path);
  std::error_code error;
  const auto removed = fs::remove_all(native, error);
  Check(error, native);
  if (removed == 0) throw RemovalError(ENOENT, native);
}

void PosixSandbox::ReadOnly(std::u16string_view path, bool on) {
  const std::string native = drives_.ToNative(path);
  RequireFile(native);
  constexpr fs::perms kWrite = fs::perms::owner_write;
  std::error_code error;
  fs::permissions(native, kWrite, on ? fs::perm_options::remove : fs::perm_options::add, error);
  Check(error, native);
}

void PosixSandbox::Link(std::u16string_view name, std::u16string_view path, LinkKind kind) {
  const std::string file = drives_.ToNative(path);
  const std::string link = drives_.ToNative(name);
  RequireFile(file);
  std::error_code error;
  if (kind == LinkKind::Hard)
    fs::create_hard_link(file, link, error);
  else
    fs::create_symlink(fs::absolute(file), link, error);
  Check(error, link);
}

void PosixSandbox::Age(std::u16string_view path, std::int64_t seconds) {
  const std::string native = drives_.ToNative(path);
  RequireFile(native);
  std::error_code error;
  const fs::file_time_type time = fs::last_write_time(native, error);
  if (!error) fs::last_write_time(native, time + std::chrono::seconds(seconds), error);
  Check(error, native);
}

}  // namespace lumenote
