// File operations on drive paths.
#include "backends/native/saving/NativeFiles.h"

#include <string>

#include "backends/native/files/AtomicFile.h"
#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"
#include "backends/native/saving/AppendFile.h"
#include "backends/native/saving/SaveFile.h"

namespace lumenote {
namespace {

/// The status of the file at `native`, links followed; a folder is not a file.
FileStatus StatusOfFile(const std::string& native) {
  const std::optional<FileStatus> status = StatusOf(native);
  if (!status) throw AccessError(LastError(), native);
  if (!status->isFile) throw RuntimeError(ErrorNumber::FileNotFound);
  return *status;
}

void MoveAcrossFileSystems(const std::string& from, const std::string& to) {
  const OpenFile old = OpenToRead(from);
  AtomicFile file(to, Permissions::UserOnly);
  file.TakeAttributes(old);
  file.Write(ReadWholeFile(from));
  file.TakeTime(old);
  file.CommitAsNew();
  if (const int error = RemoveFile(from)) throw RemovalError(error, from);
}

}  // namespace

bool NativeFiles::Exists(std::u16string_view path) const {
  return IgnoringErrors([&] { StatusOfFile(drives_.ToNative(path)); });
}

bool NativeFiles::IsReadOnly(std::u16string_view path) const {
  return StatusOfFile(drives_.ToNative(path)).readOnly;
}

FileTime NativeFiles::ModificationTime(std::u16string_view path) const {
  return StatusOfFile(drives_.ToNative(path)).time;
}

std::uint64_t NativeFiles::Size(std::u16string_view path) const {
  return StatusOfFile(drives_.ToNative(path)).size;
}

std::string NativeFiles::ReadAll(std::u16string_view path) const {
  return ReadWholeFile(drives_.ToNative(path));
}

bool NativeFiles::SameFile(std::u16string_view one, std::u16string_view other) const {
  bool same = false;
  IgnoringErrors([&] {
    same = StatusOfFile(drives_.ToNative(one)).id == StatusOfFile(drives_.ToNative(other)).id;
  });
  return same;
}

std::shared_ptr<void> NativeFiles::LockFolder(std::u16string_view path) const {
  std::shared_ptr<void> lock;
  IgnoringErrors([&] { lock = LockFolderOf(FollowLinks(drives_.ToNative(path))); });
  return lock;
}

void NativeFiles::Write(std::u16string_view path, std::string_view bytes) {
  SaveFile(drives_.ToNative(path), bytes, backups_);
}

void NativeFiles::WriteNew(std::u16string_view path, std::string_view bytes,
                           Permissions permissions) {
  WriteNewFile(drives_.ToNative(path), bytes, permissions);
}

void NativeFiles::AppendLines(std::u16string_view path, std::string_view lines) {
  AppendLinesTo(drives_.ToNative(path), lines);
}

void NativeFiles::Delete(std::u16string_view path, bool force) {
  const std::string native = drives_.ToNative(path);
  const bool readOnly = StatusOfFile(native).readOnly;
  if (readOnly && !force) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (const int error = RemoveFile(native)) throw RemovalError(error, native);
}

void NativeFiles::Copy(std::u16string_view from, std::u16string_view to) {
  const std::string source = drives_.ToNative(from);
  const std::string target = FollowLinks(drives_.ToNative(to));
  if (!MayReplace(target)) throw RuntimeError(ErrorNumber::PermissionDenied);
  StatusOfFile(source);
  AtomicFile file(target, Permissions::UserOnly);
  file.Write(ReadWholeFile(source));
  file.TakeMode(OpenToRead(source));
  file.Commit();
}

void NativeFiles::Move(std::u16string_view from, std::u16string_view to) {
  const std::string source = drives_.ToNative(from);
  const std::string target = drives_.ToNative(to);
  StatusOfFile(source);
  const int error = RenameWithoutReplacing(source, target);
  if (IsElsewhere(error)) return MoveAcrossFileSystems(source, target);
  if (IsTaken(error)) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (error != 0) throw RemovalError(error, target);
}

}  // namespace lumenote
