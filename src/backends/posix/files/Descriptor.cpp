// Closes descriptors, reads to the end, writes all.
#include "backends/posix/files/Descriptor.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

#include "backends/posix/files/Errors.h"

namespace lumenote {
namespace {

/// More units than a position can count could not be edited, so larger files are not read.
constexpr std::int64_t kLargestFile = std::numeric_limits<std::int32_t>::max();

std::size_t SizeOfRegular(const Descriptor& file) {
  struct stat info = {};
  const bool readable = fstat(file.Number(), &info) == 0 && S_ISREG(info.st_mode);
  if (!readable || info.st_size > kLargestFile) throw RuntimeError(ErrorNumber::PathAccess);
  return static_cast<std::size_t>(info.st_size);
}

}  // namespace

Descriptor::~Descriptor() {
  if (IsOpen()) close(number_);
}

std::string ReadWholeFile(const std::string& path) {
  // Without O_NONBLOCK opening a named pipe would wait for a writer before we could refuse it.
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
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

bool IsNameOf(const std::string& path, const Descriptor& file) {
  struct stat here = {};
  struct stat there = {};
  return fstat(file.Number(), &here) == 0 && lstat(path.c_str(), &there) == 0 &&
         here.st_dev == there.st_dev && here.st_ino == there.st_ino;
}

int SyncToDisk(const std::string& path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  const bool done = file.IsOpen() && fsync(file.Number()) == 0;
  return done || errno == EINVAL ? 0 : errno;  // not every file system can flush folders
}

int WriteAll(const Descriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file.Number(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return 0;
}

}  // namespace lumenote
