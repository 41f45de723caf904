// Chooses between a rename and writing in place.
#include "backends/posix/saving/ReplaceFile.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "backends/posix/files/AtomicFile.h"
#include "backends/posix/files/Errors.h"
#include "backends/posix/saving/InPlace.h"

namespace lumenote {
namespace {

enum class Keep { WhatCanBe, All };

std::string TargetOf(const std::string& path) {
  std::string target = FollowLinks(path);
  if (!MayReplace(target)) throw RuntimeError(ErrorNumber::PathAccess);
  return target;
}

/// The file's other names must show the change, too.
bool HasOtherNames(const Descriptor& file) {
  struct stat info = {};
  return fstat(file.Number(), &info) != 0 || info.st_nlink > 1;
}

/// False, with nothing changed, if that would lose something or the folder refuses it.
bool Replaced(const std::string& target, std::string_view bytes, Keep keep) {
  const Descriptor old(open(target.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  if (keep == Keep::All && HasOtherNames(old)) return false;
  AtomicFile file(target, S_IRUSR | S_IWUSR);
  if (file.Refused()) return false;
  if (!file.TakeAttributes(old) && keep == Keep::All) return false;
  file.Write(bytes);
  return file.TryCommit();
}

void Create(const std::string& target, std::string_view bytes, mode_t mode) {
  AtomicFile file(target, mode);
  file.Write(bytes);
  file.Commit();
}

bool PathExists(const std::string& target) {
  struct stat info = {};
  return stat(target.c_str(), &info) == 0;
}

}  // namespace

std::string FollowLinks(const std::string& path) {
  constexpr int kLongestChain = 40;
  std::filesystem::path place = path;
  std::error_code error;
  for (int i = 0; i < kLongestChain && std::filesystem::is_symlink(place, error); ++i) {
    place = place.parent_path() / std::filesystem::read_symlink(place, error);
  }
  return place.string();
}

bool MayReplace(const std::string& path) {
  struct stat info = {};
  if (stat(path.c_str(), &info) != 0) return errno == ENOENT || errno == ENOTDIR;
  return S_ISREG(info.st_mode) && (info.st_mode & S_IWUSR) != 0 &&
         faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

void ReplaceFile(const std::string& path, std::string_view bytes, mode_t newMode) {
  const std::string target = TargetOf(path);
  if (!PathExists(target)) return Create(target, bytes, newMode);
  if (!Replaced(target, bytes, Keep::WhatCanBe)) throw RuntimeError(ErrorNumber::PathAccess);
}

void SaveFile(const std::string& path, std::string_view bytes, mode_t newMode,
              PosixStateFolder* backups) {
  const std::string target = TargetOf(path);
  if (!PathExists(target)) return Create(target, bytes, newMode);
  if (Replaced(target, bytes, Keep::All)) return;
  if (!backups) throw RuntimeError(ErrorNumber::PathAccess);
  WriteInPlace(target, bytes, *backups);
}

}  // namespace lumenote
