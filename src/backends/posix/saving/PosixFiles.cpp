// File operations on drive paths.
#include "backends/posix/saving/PosixFiles.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "backends/posix/files/AtomicFile.h"
#include "backends/posix/files/Descriptor.h"
#include "backends/posix/files/Errors.h"
#include "backends/posix/files/FileLock.h"
#include "backends/posix/saving/AppendFile.h"
#include "backends/posix/saving/ReplaceFile.h"

namespace lumenote {
namespace {

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kPermissions = 0777;

bool IsReadOnlyMode(const struct stat& info) { return (info.st_mode & S_IWUSR) == 0; }

/// Status of the regular file at `native`, links followed; a folder is not a file.
struct stat InfoOf(const std::string& native) {
  struct stat info = {};
  if (stat(native.c_str(), &info) != 0) throw AccessError(errno, native);
  if (!S_ISREG(info.st_mode)) throw RuntimeError(ErrorNumber::FileNotFound);
  return info;
}

/// Clamped to the 584 years that fit.
FileTime InNanoseconds(const struct timespec& time) {
  constexpr FileTime kSecond = 1'000'000'000;
  constexpr FileTime kLast = std::numeric_limits<FileTime>::max() / kSecond - 1;
  return std::clamp<FileTime>(time.tv_sec, -kLast, kLast) * kSecond + time.tv_nsec;
}

void MoveAcrossFileSystems(const std::string& from, const std::string& to) {
  const struct stat info = InfoOf(from);
  AtomicFile file(to, S_IRUSR | S_IWUSR);
  file.TakeAttributes(Descriptor(open(from.c_str(), O_RDONLY | O_CLOEXEC)));
  file.Write(ReadWholeFile(from));
  file.TakeModificationTime(info);
  file.CommitAsNew();
  if (unlink(from.c_str()) != 0) throw RemovalError(errno, from);
}

}  // namespace

bool PosixFiles::Exists(std::u16string_view path) const {
  return IgnoringErrors([&] { InfoOf(drives_.ToNative(path)); });
}

bool PosixFiles::IsReadOnly(std::u16string_view path) const {
  return IsReadOnlyMode(InfoOf(drives_.ToNative(path)));
}

FileTime PosixFiles::ModificationTime(std::u16string_view path) const {
  return InNanoseconds(InfoOf(drives_.ToNative(path)).st_mtim);
}

std::uint64_t PosixFiles::Size(std::u16string_view path) const {
  return static_cast<std::uint64_t>(InfoOf(drives_.ToNative(path)).st_size);
}

std::string PosixFiles::ReadAll(std::u16string_view path) const {
  return ReadWholeFile(drives_.ToNative(path));
}

bool PosixFiles::SameFile(std::u16string_view one, std::u16string_view other) const {
  bool same = false;
  IgnoringErrors([&] {
    const struct stat first = InfoOf(drives_.ToNative(one));
    const struct stat second = InfoOf(drives_.ToNative(other));
    same = first.st_dev == second.st_dev && first.st_ino == second.st_ino;
  });
  return same;
}

std::shared_ptr<void> PosixFiles::LockFolder(std::u16string_view path) const {
  std::shared_ptr<Descriptor> folder;
  IgnoringErrors([&] {
    const std::filesystem::path note = FollowLinks(drives_.ToNative(path));
    const int number = open(note.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    folder = std::make_shared<Descriptor>(number);
    if (folder->IsOpen()) AwaitLock(*folder);
  });
  return folder;
}

void PosixFiles::Write(std::u16string_view path, std::string_view bytes) {
  SaveFile(drives_.ToNative(path), bytes, kNewFileMode, backups_);
}

void PosixFiles::WriteNew(std::u16string_view path, std::string_view bytes,
                          Permissions permissions) {
  const mode_t mode = permissions == Permissions::UserOnly ? S_IRUSR | S_IWUSR : kNewFileMode;
  AtomicFile file(FollowLinks(drives_.ToNative(path)), mode);
  file.Write(bytes);
  file.CommitAsNew();
}

void PosixFiles::AppendLines(std::u16string_view path, std::string_view lines) {
  AppendLinesTo(drives_.ToNative(path), lines, kNewFileMode);
}

void PosixFiles::Delete(std::u16string_view path, bool force) {
  const std::string native = drives_.ToNative(path);
  const bool readOnly = IsReadOnlyMode(InfoOf(native));
  if (readOnly && !force) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (unlink(native.c_str()) != 0) throw RemovalError(errno, native);
}

void PosixFiles::Copy(std::u16string_view from, std::u16string_view to) {
  const std::string source = drives_.ToNative(from);
  const std::string target = FollowLinks(drives_.ToNative(to));
  if (!MayReplace(target)) throw RuntimeError(ErrorNumber::PermissionDenied);
  AtomicFile file(target, InfoOf(source).st_mode & kPermissions);
  file.Write(ReadWholeFile(source));
  file.Commit();
}

void PosixFiles::Move(std::u16string_view from, std::u16string_view to) {
  const std::string source = drives_.ToNative(from);
  const std::string target = drives_.ToNative(to);
  InfoOf(source);
  const int error = RenameWithoutReplacing(source, target);
  if (error == EXDEV) return MoveAcrossFileSystems(source, target);
  if (error == EEXIST) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (error != 0) throw RemovalError(error, target);
}

}  // namespace lumenote
