// Advisory locking of a dedicated file.
#include "backends/native/files/FileLock.h"

#include <chrono>
#include <thread>

#include "backends/native/files/Disk.h"
#include "base/RuntimeError.h"

namespace lumenote {

LockResult AwaitLock(const OpenFile& file) {
  using std::chrono::milliseconds;
  constexpr milliseconds kPause(10);
  // A holder needs only the time to write one file; one that hangs must not block this process,
  // too.
  for (milliseconds patience(5000); patience.count() > 0; patience -= kPause) {
    const LockResult result = TryLock(file, Lock::Exclusive);
    if (result != LockResult::Taken) return result;
    std::this_thread::sleep_for(kPause);
  }
  return LockResult::Taken;
}

FileLock::FileLock(const std::string& path) : file_(Recreate(path)) {
  if (AwaitLock(file_) != LockResult::Locked) throw RuntimeError(ErrorNumber::PathAccess);
}

}  // namespace lumenote
