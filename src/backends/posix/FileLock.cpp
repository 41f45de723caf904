// Locking by an advisory lock on a file of its own.
#include "backends/posix/FileLock.h"

#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

#include "base/RuntimeError.h"

namespace lumenote {

FileLock::FileLock(const std::string& path)
    : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
  using std::chrono::milliseconds;
  constexpr milliseconds kPause(10);
  // A holder writes one small file; one that is stopped meanwhile must not stop this process too.
  for (milliseconds patience(5000); file_.IsOpen() && patience.count() > 0; patience -= kPause) {
    if (flock(file_.Number(), LOCK_EX | LOCK_NB) == 0) return;
    std::this_thread::sleep_for(kPause);
  }
  throw RuntimeError(ErrorNumber::PathAccess);
}

}  // namespace lumenote
