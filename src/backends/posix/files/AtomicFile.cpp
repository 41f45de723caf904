// Writes beside the target, flushes, renames.
#include "backends/posix/files/AtomicFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <utility>

#include "backends/posix/files/BesideFile.h"
#include "backends/posix/files/Errors.h"

namespace lumenote {
namespace {

std::string FolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

}  // namespace

AtomicFile::AtomicFile(std::string target, mode_t mode)
    : target_(std::move(target)), file_(CreateBeside(target_, mode, name_)) {
  if (Refused() && !IsRefusal(errno)) throw AccessError(errno, target_);
}

AtomicFile::~AtomicFile() {
  if (!name_.empty()) unlink(name_.c_str());
}

void AtomicFile::TakeModificationTime(const struct stat& old) {
  const struct timespec times[] = {{0, UTIME_OMIT}, old.st_mtim};
  futimens(file_.Number(), times);
}

void AtomicFile::Write(std::string_view bytes) {
  if (const int error = WriteAll(file_, bytes)) throw AccessError(error, target_);
}

void AtomicFile::Flush() {
  if (fsync(file_.Number()) != 0) throw AccessError(errno, target_);
}

bool AtomicFile::TryCommit() {
  Flush();
  if (rename(name_.c_str(), target_.c_str()) == 0) {
    Committed();
    return true;
  }
  if (!IsRefusal(errno)) throw AccessError(errno, target_);
  return false;
}

void AtomicFile::Commit() {
  if (!TryCommit()) throw RuntimeError(ErrorNumber::PathAccess);
}

void AtomicFile::CommitAsNew() {
  Flush();
  const int error = RenameWithoutReplacing(name_, target_);
  if (error == EEXIST) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (error != 0) throw AccessError(error, target_);
  Committed();
}

void AtomicFile::Committed() {
  name_.clear();
  SyncToDisk(FolderOf(target_));  // the rename is done: nothing useful to report
}

int RenameWithoutReplacing(const std::string& from, const std::string& to) {
#ifdef RENAME_NOREPLACE
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
#endif
  // Not every file system supports that rename; a hard link never replaces an existing file.
  if (link(from.c_str(), to.c_str()) != 0) return errno;
  if (unlink(from.c_str()) == 0) return 0;
  const int error = errno;
  unlink(to.c_str());
  return error;
}

}  // namespace lumenote
