// A flag that is set while a block runs.
#pragma once
#include <utility>

namespace lumenote {

/// Sets the flag and restores its former value at the end of the block, so that blocks may nest.
/// The flag outlives it.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~ScopedFlag() { flag_ = before_; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace lumenote
