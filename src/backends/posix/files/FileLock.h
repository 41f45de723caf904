// One process at a time.
#pragma once
#include <string>

#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// Waits a few seconds for the lock on an open file, which goes when the file is closed. Returns 0,
/// EWOULDBLOCK when another holds it all the time, or what keeps the file from being locked.
int AwaitLock(const Descriptor& file);

/// Holds the lock file at a native path, which stays when the lock is let go. Waits for another
/// holder a few seconds, then raises PathAccess, as when the file cannot be made.
class FileLock {
 public:
  explicit FileLock(const std::string& path);

 private:
  Descriptor file_;  // closing it lets the lock go
};

}  // namespace lumenote
