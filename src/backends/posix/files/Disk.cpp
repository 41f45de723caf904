// Files and folders by their native paths.
#include "backends/native/files/Disk.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "backends/native/files/Errors.h"
#include "backends/native/files/FileLock.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

/// More units than a position can count could not be edited, so larger files are not read.
constexpr std::int64_t kLargestFile = std::numeric_limits<std::int32_t>::max();

constexpr mode_t kPrivate = 0600;
constexpr mode_t kDefault = 0666;

std::size_t SizeOfRegular(const OpenFile& file) {
  struct stat info = {};
  const bool readable = fstat(file.Number(), &info) == 0 && S_ISREG(info.st_mode);
  if (!readable || info.st_size > kLargestFile) throw RuntimeError(ErrorNumber::PathAccess);
  return static_cast<std::size_t>(info.st_size);
}

/// Without O_NONBLOCK opening a named pipe would wait for the other end before we could refuse it.
OpenFile Open(const std::string& path, int how, mode_t mode = kPrivate) {
  return OpenFile(open(path.c_str(), how | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode));
}

/// Clamped to the 584 years that fit.
FileTime InNanoseconds(const struct timespec& time) {
  constexpr FileTime kSecond = 1'000'000'000;
  constexpr FileTime kLast = std::numeric_limits<FileTime>::max() / kSecond - 1;
  return std::clamp<FileTime>(time.tv_sec, -kLast, kLast) * kSecond + time.tv_nsec;
}

}  // namespace

int LastError() { return errno; }

std::string ReadWholeFile(const std::string& path) {
  const OpenFile file = OpenToRead(path);
  if (!file.IsOpen()) throw AccessError(errno, path);
  std::string bytes(SizeOfRegular(file), '\0');
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const ssize_t count = read(file.Number(), bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw AccessError(errno, path);
    if (count == 0) break;  // truncated meanwhile
    filled += static_cast<std::size_t>(count);
  }
  bytes.resize(filled);
  return bytes;
}

OpenFile CreateNew(const std::string& path, Permissions permissions) {
  constexpr int kHow = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
  return Open(path, kHow, permissions == Permissions::UserOnly ? kPrivate : kDefault);
}

OpenFile Recreate(const std::string& path) {
  return Open(path, O_RDWR | O_CREAT | O_TRUNC | O_NOFOLLOW);
}

OpenFile OpenExisting(const std::string& path) {
  OpenFile file = Open(path, O_RDWR | O_NOFOLLOW);
  if (file.IsOpen() || errno != EACCES) return file;
  return Open(path, O_RDONLY | O_NOFOLLOW);
}

OpenFile OpenToRead(const std::string& path) { return Open(path, O_RDONLY); }

OpenFile OpenToWrite(const std::string& path) { return Open(path, O_WRONLY); }

OpenFile OpenToAppend(const std::string& path) {
  return Open(path, O_RDWR | O_APPEND | O_CREAT, kDefault);
}

bool IsTaken(int error) { return error == EEXIST; }

bool IsMissing(int error) { return error == ENOENT || error == ENOTDIR; }

bool IsElsewhere(int error) { return error == EXDEV; }

int SyncToDisk(const std::string& path) {
  const OpenFile file = OpenToRead(path);
  const bool done = file.IsOpen() && fsync(file.Number()) == 0;
  return done || errno == EINVAL ? 0 : errno;  // not every file system can flush folders
}

int RenameOver(const std::string& from, const std::string& to) {
  return rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
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

int MakeFolders(const std::string& path) {
  std::error_code error;
  fs::create_directories(path, error);
  return error.value();
}

void MakePrivateFolder(const std::string& path) {
  MakeFolders(ParentOf(path));
  if (path.empty() || (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST))
    throw RuntimeError(ErrorNumber::PathAccess);
}

std::string MakeUniqueFolder(const std::string& parent, const std::string& prefix) {
  std::string folder = parent + "/" + prefix + "XXXXXX";
  return mkdtemp(folder.data()) ? folder : std::string();
}

bool IsRealFolder(const std::string& path) {
  struct stat info = {};
  return lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

bool IsOwnFolder(const std::string& path) {
  struct stat info = {};
  return lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid();
}

std::optional<std::vector<std::string>> AllNamesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  if (error) return std::nullopt;
  return names;
}

int RemoveFile(const std::string& path) { return unlink(path.c_str()) == 0 ? 0 : errno; }

int RemoveEmptyFolder(const std::string& path) { return rmdir(path.c_str()) == 0 ? 0 : errno; }

int RemoveTree(const std::string& path) {
  std::error_code error;
  const auto removed = fs::remove_all(path, error);
  return !error && removed == 0 ? ENOENT : error.value();
}

std::optional<FileStatus> StatusOf(const std::string& path) {
  struct stat info = {};
  if (stat(path.c_str(), &info) != 0) return std::nullopt;
  return FileStatus{.id = {info.st_dev, info.st_ino},
                    .size = static_cast<std::uint64_t>(info.st_size),
                    .time = InNanoseconds(info.st_mtim),
                    .names = info.st_nlink,
                    .isFile = S_ISREG(info.st_mode),
                    .readOnly = (info.st_mode & S_IWUSR) == 0};
}

bool IsWritable(const std::string& path) {
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

std::string FollowLinks(const std::string& path) {
  constexpr int kLongestChain = 40;
  fs::path place = path;
  std::error_code error;
  for (int i = 0; i < kLongestChain && fs::is_symlink(place, error); ++i) {
    place = place.parent_path() / fs::read_symlink(place, error);
  }
  return place.string();
}

std::shared_ptr<void> LockFolderOf(const std::string& path) {
  const int number = open(ParentOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  auto folder = std::make_shared<OpenFile>(number);
  if (folder->IsOpen()) AwaitLock(*folder);
  return folder;
}

std::int64_t LastChangeOf(const std::string& path) {
  struct stat info = {};
  return lstat(path.c_str(), &info) == 0 ? info.st_mtim.tv_sec
                                         : std::numeric_limits<std::int64_t>::max();
}

std::string AbsolutePath(const std::string& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  return error ? path : absolute.string();
}

}  // namespace lumenote
