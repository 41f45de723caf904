// Copies attributes and verifies the result.
#include "backends/native/files/FileAttributes.h"

#include <cerrno>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace lumenote {
namespace {

using Attributes = std::map<std::string, std::string>;

constexpr mode_t kPermissions = 07777;

/// The result of a call that is first asked for the size; empty on failure.
template <class Call>
std::optional<std::string> BytesOf(Call call) {
  const ssize_t size = call(nullptr, 0);
  if (size < 0) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  const ssize_t filled = size > 0 ? call(bytes.data(), bytes.size()) : 0;
  if (filled < 0) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(filled));
  return bytes;
}

/// No attributes on a file system without them; empty if they cannot be read.
std::optional<Attributes> AttributesOf(int file) {
  const auto names =
      BytesOf([=](char* bytes, std::size_t size) { return flistxattr(file, bytes, size); });
  if (!names && errno != ENOTSUP) return std::nullopt;
  Attributes all;
  for (std::size_t next = 0; names && next < names->size();) {
    const std::string name = names->c_str() + next;
    const auto value = BytesOf(
        [&](char* bytes, std::size_t size) { return fgetxattr(file, name.c_str(), bytes, size); });
    if (!value) return std::nullopt;
    all.emplace(name, *value);
    next += name.size() + 1;
  }
  return all;
}

bool CopyExtended(int from, int to) {
  const auto wanted = AttributesOf(from);
  const auto present = AttributesOf(to);
  if (!wanted || !present) return false;
  bool same = true;
  for (const auto& [name, value] : *present)
    if (!wanted->contains(name)) same &= fremovexattr(to, name.c_str()) == 0;
  for (const auto& [name, value] : *wanted) {
    const auto found = present->find(name);
    if (found == present->end() || found->second != value)
      same &= fsetxattr(to, name.c_str(), value.data(), value.size(), 0) == 0;
  }
  return same;
}

bool HasOwner(int file, const struct stat& old) {
  struct stat info = {};
  return fstat(file, &info) == 0 && info.st_uid == old.st_uid && info.st_gid == old.st_gid;
}

bool HasMode(int file, mode_t mode) {
  struct stat info = {};
  return fstat(file, &info) == 0 && (info.st_mode & kPermissions) == mode;
}

/// Returns whether the file got at least the group.
bool TakeOwner(int file, const struct stat& old) {
  return HasOwner(file, old) || fchown(file, old.st_uid, old.st_gid) == 0 ||
         fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0;
}

}  // namespace

bool CopyAttributes(const OpenFile& from, const OpenFile& to) {
  struct stat old = {};
  if (fstat(from.Number(), &old) != 0) return false;
  const int file = to.Number();
  const mode_t wanted = old.st_mode & kPermissions;
  const bool inGroup = TakeOwner(file, old);
  const bool same = CopyExtended(from.Number(), file);
  fchmod(file, inGroup ? wanted : (wanted & ~S_IRWXG) | (wanted & S_IRWXO) << 3);
  return same && HasOwner(file, old) && HasMode(file, wanted);
}

void CopyMode(const OpenFile& from, const OpenFile& to) {
  struct stat info = {};
  if (fstat(from.Number(), &info) == 0) fchmod(to.Number(), info.st_mode & 0777);
}

void CopyTime(const OpenFile& from, const OpenFile& to) {
  struct stat info = {};
  if (fstat(from.Number(), &info) != 0) return;
  const struct timespec times[] = {{0, UTIME_OMIT}, info.st_mtim};
  futimens(to.Number(), times);
}

}  // namespace lumenote
