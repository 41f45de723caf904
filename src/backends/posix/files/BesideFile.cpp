// Temporary names, locks, and removing what dead saves left.
#include "backends/posix/files/BesideFile.h"

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace lumenote {
namespace {

/// Short enough for every file system, however long the target's name is.
std::string NameHash(std::string_view name) {
  std::uint64_t hash = 14695981039346656037U;  // FNV-1a
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  char digits[16];
  return {digits, std::to_chars(std::begin(digits), std::end(digits), hash, 16).ptr};
}

/// The temporary name of the `number`th concurrent save of one target.
std::string NameBeside(const std::filesystem::path& target, unsigned number) {
  const std::string name = ".lumenote-" + NameHash(target.filename().string());
  return (target.parent_path() / (name + "-" + std::to_string(number))).string();
}

bool IsOwnRegular(const Descriptor& file) {
  struct stat info = {};
  return fstat(file.Number(), &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == geteuid();
}

void RemoveIfDead(const std::string& name) {
  const Descriptor file(open(name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!file.IsOpen() || !IsOwnRegular(file)) return;
  if (flock(file.Number(), LOCK_EX | LOCK_NB) == 0 && IsNameOf(name, file)) unlink(name.c_str());
}

/// Fails with EEXIST, too, if another save took the new file for a dead one before it was locked.
/// On a file system without locks no file is ever taken for dead.
Descriptor CreateLocked(const std::string& name, mode_t mode) {
  Descriptor file(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
  if (!file.IsOpen()) return file;
  const bool taken = flock(file.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  if (!taken && IsNameOf(name, file)) return file;
  errno = EEXIST;
  return Descriptor();
}

}  // namespace

Descriptor CreateBeside(const std::string& target, mode_t mode, std::string& name) {
  constexpr unsigned kLikelyNumbers = 8;
  std::optional<Descriptor> made;
  for (unsigned number = 0; !made || number < kLikelyNumbers; ++number) {
    const std::string beside = NameBeside(target, number);
    RemoveIfDead(beside);
    if (made) continue;
    Descriptor file = CreateLocked(beside, mode);
    if (!file.IsOpen() && errno != EEXIST) return file;
    if (!file.IsOpen()) continue;
    name = beside;
    made.emplace(std::move(file));
  }
  return std::move(*made);
}

}  // namespace lumenote
