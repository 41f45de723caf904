// Advisory locking of a dedicated file.
#include "backends/posix/files/FileLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

#include "base/RuntimeError.h"

namespace lumenote {

int AwaitLock(const Descriptor& file) {
  using std::chrono::milliseconds;
  constexpr milliseconds kPause(10);
  // A holder needs only the time to write one file; one that hangs must not block this process,
  // too.
  for (milliseconds patience(5000); patience.count() > 0; patience -= kPause) {
    if (flock(file.Number(), LOCK_EX | LOCK_NB) == 0) return 0;
    if (errno != EWOULDBLOCK && errno != EINTR) return errno;
    std::this_thread::sleep_for(kPause);
  }
  return EWOULDBLOCK;
}

FileLock::FileLock(const std::string& path)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
  if (AwaitLock(file_) != 0) throw RuntimeError(ErrorNumber::PathAccess);
}

}  // namespace lumenote
