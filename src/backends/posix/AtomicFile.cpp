// Writing beside the target, flushing, renaming.
#include "backends/posix/AtomicFile.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "backends/posix/Errors.h"

namespace lumenote {
namespace {

std::string FolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

/// Another name at every call; one that a crashed process left behind is passed over.
std::string NameBeside(const std::string& target) {
  static std::atomic<unsigned> count = 0;
  return FolderOf(target) + "/.lumenote-" + std::to_string(getpid()) + "-" +
         std::to_string(count++);
}

int CreateBeside(const std::string& target, mode_t mode, std::string& name) {
  int number = -1;
  do {
    name = NameBeside(target);
    number = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
  } while (number < 0 && errno == EEXIST);
  return number;
}

/// Makes a rename last. It has happened already, so a failure is nothing to report.
void FlushFolder(const std::string& folder) {
  const Descriptor file(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (file.IsOpen()) fsync(file.Number());
}

}  // namespace

AtomicFile::AtomicFile(std::string target, mode_t mode)
    : target_(std::move(target)), file_(CreateBeside(target_, mode, name_)) {
  if (!file_.IsOpen()) throw AccessError(errno, name_);
}

AtomicFile::~AtomicFile() {
  if (!name_.empty()) unlink(name_.c_str());
}

void AtomicFile::TakeAttributes(const struct stat& old) {
  constexpr mode_t kPermissions = 07777;
  mode_t mode = old.st_mode & kPermissions;
  if (fchown(file_.Number(), old.st_uid, old.st_gid) != 0 &&
      fchown(file_.Number(), static_cast<uid_t>(-1), old.st_gid) != 0) {
    mode = (mode & ~S_IRWXG) | (mode & S_IRWXO) << 3;  // another group gets no more than others
  }
  fchmod(file_.Number(), mode);
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

void AtomicFile::Commit() {
  Flush();
  if (rename(name_.c_str(), target_.c_str()) != 0) throw AccessError(errno, target_);
  Committed();
}

void AtomicFile::CommitAsNew() {
  Flush();
  const int error = RenameWithoutReplacing(name_, target_);
  if (error == EEXIST) throw RuntimeError(ErrorNumber::PermissionDenied);
  if (error != 0) throw RemovalError(error, target_);
  Committed();
}

void AtomicFile::Committed() {
  name_.clear();
  FlushFolder(FolderOf(target_));
}

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
  const std::string target = FollowLinks(path);
  if (!MayReplace(target)) throw RuntimeError(ErrorNumber::PathAccess);
  struct stat old = {};
  const bool exists = stat(target.c_str(), &old) == 0;
  AtomicFile file(target, exists ? S_IRUSR | S_IWUSR : newMode);
  if (exists) file.TakeAttributes(old);
  file.Write(bytes);
  file.Commit();
}

int RenameWithoutReplacing(const std::string& from, const std::string& to) {
#ifdef RENAME_NOREPLACE
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
#endif
  // Not every file system knows that rename: a second link is refused where something stands.
  if (link(from.c_str(), to.c_str()) != 0) return errno;
  if (unlink(from.c_str()) == 0) return 0;
  const int error = errno;
  unlink(to.c_str());
  return error;
}

}  // namespace lumenote
