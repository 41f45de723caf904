// Temporary names, locks, and removing what dead saves left.
#include "backends/native/files/BesideFile.h"

#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "backends/native/files/Disk.h"

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
std::string NameBeside(const std::string& target, unsigned number) {
  const std::size_t name = target.rfind('/') + 1;
  const std::string beside = ".lumenote-" + NameHash(target.substr(name));
  return target.substr(0, name) + beside + "-" + std::to_string(number);
}

void RemoveIfDead(const std::string& name) {
  const OpenFile file = OpenExisting(name);
  if (!file.IsOpen() || !IsOwn(file)) return;
  const bool dead = TryLock(file, Lock::Exclusive) == LockResult::Locked;
  if (dead && IsNameOf(name, file)) RemoveFile(name);
}

/// Nothing if the name is taken, or another save took the new file for a dead one before it was
/// locked. On a file system without locks no file is ever taken for dead.
std::optional<OpenFile> CreateLocked(const std::string& name, Permissions permissions) {
  OpenFile file = CreateNew(name, permissions);
  if (!file.IsOpen() && IsTaken(LastError())) return std::nullopt;
  if (!file.IsOpen()) return file;
  const bool taken = TryLock(file, Lock::Exclusive) == LockResult::Taken;
  if (taken || !IsNameOf(name, file)) return std::nullopt;
  return file;
}

}  // namespace

OpenFile CreateBeside(const std::string& target, Permissions permissions, std::string& name) {
  constexpr unsigned kLikelyNumbers = 8;
  std::optional<OpenFile> made;
  for (unsigned number = 0; !made || number < kLikelyNumbers; ++number) {
    const std::string beside = NameBeside(target, number);
    RemoveIfDead(beside);
    if (made) continue;
    made = CreateLocked(beside, permissions);
    if (made && !made->IsOpen()) break;
    if (made) name = beside;
  }
  return std::move(*made);
}

}  // namespace lumenote
