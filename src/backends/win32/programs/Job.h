// A started program with all processes that it starts.
#pragma once
#include <string>
#include <sys/types.h>
#include <vector>

#include "backends/win32/system/OwnedHandle.h"
#include "backends/win32/system/System.h"

namespace lumenote {

struct HandleClosing {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = OwnedHandle<HANDLE, HandleClosing>;

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
