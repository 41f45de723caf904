// Writes beside the target, flushes, renames.
#include "backends/native/files/AtomicFile.h"

#include <utility>

#include "backends/native/files/BesideFile.h"
#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"

namespace lumenote {

AtomicFile::AtomicFile(std::string target, Permissions permissions)
    : target_(std::move(target)), file_(CreateBeside(target_, permissions, name_)) {
  if (const int error = Refused() ? LastError() : 0; error != 0 && !IsRefusal(error))
    throw AccessError(error, target_);
}

AtomicFile::~AtomicFile() {
  // Unlinked while it is locked: another save may take a free name at once.
  if (!name_.empty()) RemoveFile(name_);
}

void AtomicFile::Write(std::string_view bytes) {
  if (const int error = WriteAll(file_, bytes)) throw AccessError(error, target_);
}

void AtomicFile::FlushAll() {
  if (const int error = Flush(file_)) throw AccessError(error, target_);
}

bool AtomicFile::TryCommit() {
  FlushAll();
  const int error = RenameOver(name_, target_);
  if (error != 0 && !IsRefusal(error)) throw AccessError(error, target_);
  if (error == 0) Committed();
  return error == 0;
}

void AtomicFile::Commit() {
  if (!TryCommit()) throw RuntimeError(ErrorNumber::PathAccess);
}

void AtomicFile::CommitAsNew() {
  FlushAll();
  const int error = RenameWithoutReplacing(name_, target_);
  if (IsTaken(error)) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (error != 0) throw AccessError(error, target_);
  Committed();
}

void AtomicFile::Committed() {
  name_.clear();
  SyncToDisk(ParentOf(target_));  // the rename is done: nothing useful to report
}

void WriteNewFile(const std::string& path, std::string_view bytes, Permissions permissions) {
  AtomicFile file(FollowLinks(path), permissions);
  file.Write(bytes);
  file.CommitAsNew();
}

}  // namespace lumenote
