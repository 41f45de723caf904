// Mutual exclusion between processes.
#pragma once
#include <string>

#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// Waits a few seconds for the lock on an open file; closing the file releases it. Returns 0,
/// EWOULDBLOCK if another process keeps it, or another errno value if the file cannot be locked.
int AwaitLock(const Descriptor& file);

/// Holds the lock file at a native path; the file stays when the lock is released. Waits a few
/// seconds for another holder, then raises PathAccess, as it does if the file cannot be created.
class FileLock {
 public:
  explicit FileLock(const std::string& path);

 private:
  Descriptor file_;  // closing it releases the lock
};

}  // namespace lumenote
