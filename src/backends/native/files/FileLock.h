// Mutual exclusion between processes.
#pragma once
#include <string>

#include "backends/native/files/OpenFile.h"

namespace lumenote {

/// Waits a few seconds for the exclusive lock on an open file.
LockResult AwaitLock(const OpenFile& file);

/// Holds the lock file at a native path; the file stays when the lock is released. Waits a few
/// seconds for another holder, then raises PathAccess, as it does if the file cannot be created.
class FileLock {
 public:
  explicit FileLock(const std::string& path);

 private:
  OpenFile file_;  // closing it releases the lock
};

}  // namespace lumenote
