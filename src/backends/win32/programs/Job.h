// A started program with all processes that it starts.
#pragma once
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

#include "backends/win32/system/System.h"

namespace lumenote {

/// Owns a handle of the system, or none.
class Handle {
 public:
  explicit Handle(HANDLE handle = nullptr) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Handle() {
    if (handle_) CloseHandle(handle_);
  }
  HANDLE Get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  HANDLE handle_;
};

/// A job of the system's: it knows its processes though the one that was started has ended. They
/// outlive this object.
class Job {
 public:
  /// Starts the program at `program` in a normal window. Raises FileNotFound, PathNotFound or
  /// PathAccess.
  Job(const std::string& program, std::wstring commandLine);

  bool IsRunning() const;
  std::vector<pid_t> Processes() const;

 private:
  Handle job_;
  Handle process_;  // watched alone where the system makes no jobs
};

}  // namespace lumenote
