// One process at a time.
#pragma once
#include <string>

#include "backends/posix/Descriptor.h"

namespace lumenote {

/// Holds the lock file at a native path, which stays when the lock is let go. Waits for another
/// holder a few seconds, then raises PathAccess, as when the file cannot be made.
class FileLock {
 public:
  explicit FileLock(const std::string& path);

 private:
  Descriptor file_;  // closing it lets the lock go
};

}  // namespace lumenote
