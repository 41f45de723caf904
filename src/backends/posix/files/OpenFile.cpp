// Closes, locks and identifies descriptors; writes all.
#include "backends/native/files/OpenFile.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumenote {

void OpenFile::Close() {
  if (IsOpen()) close(std::exchange(number_, kNone));
}

int WriteAll(const OpenFile& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file.Number(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

int SeekToStart(const OpenFile& file) { return lseek(file.Number(), 0, SEEK_SET) == 0 ? 0 : errno; }

int Resize(const OpenFile& file, std::uint64_t size) {
  return ftruncate(file.Number(), static_cast<off_t>(size)) == 0 ? 0 : errno;
}

int Reserve(const OpenFile& file, std::uint64_t size) {
  const auto length = static_cast<off_t>(size);
  if (length == 0 || fallocate(file.Number(), FALLOC_FL_KEEP_SIZE, 0, length) == 0) return 0;
  return errno == EOPNOTSUPP || errno == ENOSYS || errno == EINTR ? 0 : errno;
}

int Flush(const OpenFile& file) { return fsync(file.Number()) == 0 ? 0 : errno; }

std::optional<std::uint64_t> SizeOf(const OpenFile& file) {
  struct stat info = {};
  if (fstat(file.Number(), &info) != 0) return std::nullopt;
  return static_cast<std::uint64_t>(info.st_size);
}

std::optional<char> LastByteOf(const OpenFile& file) {
  char last = 0;
  const auto size = static_cast<off_t>(SizeOf(file).value_or(0));
  if (size == 0 || pread(file.Number(), &last, 1, size - 1) != 1) return std::nullopt;
  return last;
}

LockResult TryLock(const OpenFile& file, Lock lock) {
  const int kind = lock == Lock::Shared ? LOCK_SH : LOCK_EX;
  if (flock(file.Number(), kind | LOCK_NB) == 0) return LockResult::Locked;
  return errno == EWOULDBLOCK || errno == EINTR ? LockResult::Taken : LockResult::Impossible;
}

bool IsNameOf(const std::string& path, const OpenFile& file) {
  struct stat here = {};
  struct stat there = {};
  return fstat(file.Number(), &here) == 0 && lstat(path.c_str(), &there) == 0 &&
         here.st_dev == there.st_dev && here.st_ino == there.st_ino;
}

bool IsOwn(const OpenFile& file) {
  struct stat info = {};
  return fstat(file.Number(), &info) == 0 && S_ISREG(info.st_mode) && info.st_nlink > 0 &&
         info.st_uid == geteuid();
}

}  // namespace lumenote
