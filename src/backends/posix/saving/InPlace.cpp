// Backs up, overwrites, restores.
#include "backends/posix/saving/InPlace.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "backends/posix/files/Descriptor.h"
#include "backends/posix/files/Errors.h"
#include "backends/posix/files/FileLock.h"
#include "backends/posix/state/PosixStateFolder.h"

namespace lumenote {
namespace {

int Resize(const Descriptor& file, std::size_t size) {
  return ftruncate(file.Number(), static_cast<off_t>(size)) == 0 ? 0 : errno;
}

/// Detects a full disk before the old content is harmed, where the file system can tell.
int Reserve(const Descriptor& file, std::size_t size) {
  const auto length = static_cast<off_t>(size);
  if (length == 0 || fallocate(file.Number(), FALLOC_FL_KEEP_SIZE, 0, length) == 0) return 0;
  return errno == EOPNOTSUPP || errno == ENOSYS || errno == EINTR ? 0 : errno;
}

/// Returns 0 or an errno value.
int Overwrite(const Descriptor& file, std::string_view bytes) {
  if (lseek(file.Number(), 0, SEEK_SET) != 0) return errno;
  if (const int error = WriteAll(file, bytes)) return error;
  if (const int error = Resize(file, bytes.size())) return error;
  return fsync(file.Number()) == 0 ? 0 : errno;
}

std::unique_ptr<StateCopy> BackUp(const std::string& target, std::string_view bytes,
                                  PosixStateFolder& backups) {
  std::unique_ptr<StateCopy> copy = backups.MakeStateCopy();
  copy->BeginFor(target);
  copy->Append(bytes);
  copy->CommitToDisk();
  return copy;
}

int OpenToWrite(const std::string& target) {
  const int number = open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (number < 0) throw AccessError(errno, target);
  return number;
}

}  // namespace

void WriteInPlace(const std::string& target, std::string_view bytes, PosixStateFolder& backups) {
  const Descriptor file(OpenToWrite(target));
  // Another save may have replaced the file while this one waited for the lock.
  if (AwaitLock(file) == EWOULDBLOCK || !IsNameOf(target, file))
    throw RuntimeError(ErrorNumber::PathAccess);
  const std::string old = ReadWholeFile(target);
  const std::unique_ptr<StateCopy> backup = BackUp(target, old, backups);
  if (const int error = Reserve(file, bytes.size())) {
    Resize(file, old.size());  // releases the reserved space
    throw AccessError(error, target);
  }
  const int error = Overwrite(file, bytes);
  if (error == 0) return;
  if (Overwrite(file, old) != 0) backup->Leave();
  throw AccessError(error, target);
}

}  // namespace lumenote
