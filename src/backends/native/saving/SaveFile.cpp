// Chooses between a rename and writing in place.
#include "backends/native/saving/SaveFile.h"

#include "backends/native/files/AtomicFile.h"
#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"
#include "backends/native/saving/InPlace.h"

namespace lumenote {
namespace {

enum class Keep { WhatCanBe, All };

std::string TargetOf(const std::string& path) {
  std::string target = FollowLinks(path);
  if (!MayReplace(target)) throw RuntimeError(ErrorNumber::PathAccess);
  return target;
}

/// The file's other names must show the change, too.
bool HasOtherNames(const std::string& target) {
  const std::optional<FileStatus> status = StatusOf(target);
  return !status || status->names > 1;
}

/// False, with nothing changed, if that would lose something or the folder refuses it.
bool Replaced(const std::string& target, std::string_view bytes, Keep keep) {
  if (keep == Keep::All && HasOtherNames(target)) return false;
  OpenFile old = OpenToRead(target);
  AtomicFile file(target, Permissions::UserOnly);
  if (file.Refused()) return false;
  if (!file.TakeAttributes(old) && keep == Keep::All) return false;
  old.Close();  // some systems replace no file that is open
  file.Write(bytes);
  return file.TryCommit();
}

void Create(const std::string& target, std::string_view bytes, Permissions permissions) {
  AtomicFile file(target, permissions);
  file.Write(bytes);
  file.Commit();
}

bool Exists(const std::string& target) { return StatusOf(target).has_value(); }

}  // namespace

bool MayReplace(const std::string& path) {
  const std::optional<FileStatus> status = StatusOf(path);
  if (!status) return IsMissing(LastError());
  return status->isFile && !status->readOnly && IsWritable(path);
}

void ReplaceFile(const std::string& path, std::string_view bytes, Permissions newFile) {
  const std::string target = TargetOf(path);
  if (!Exists(target)) return Create(target, bytes, newFile);
  if (!Replaced(target, bytes, Keep::WhatCanBe)) throw RuntimeError(ErrorNumber::PathAccess);
}

void SaveFile(const std::string& path, std::string_view bytes, NativeStateFolder* backups) {
  const std::string target = TargetOf(path);
  if (!Exists(target)) return Create(target, bytes, Permissions::Default);
  if (Replaced(target, bytes, Keep::All)) return;
  if (!backups) throw RuntimeError(ErrorNumber::PathAccess);
  WriteInPlace(target, bytes, *backups);
}

}  // namespace lumenote
