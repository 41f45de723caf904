// Programs of a Windows system.
#pragma once
#include <string>
#include <utility>
#include <vector>

#include "backends/native/folders/DrivePaths.h"
#include "backends/native/programs/HandedFile.h"
#include "backends/win32/programs/Job.h"
#include "platform/Processes.h"

namespace lumenote {

/// Programs outlive this object.
class WinProcesses final : public Processes {
 public:
  /// `windows` must outlive it.
  WinProcesses(DrivePaths drives, ProgramWindows& windows)
      : drives_(std::move(drives)), windows_(windows) {}

  ProcessId Start(std::u16string_view commandLine) override;
  void Open(std::u16string_view address) override;
  bool IsRunning(ProcessId process) override;
  /// Closes the windows of a program that has some, so that it can ask its user first; ends others
  /// at once.
  std::optional<SystemError> Terminate(std::u16string_view path) override;
  std::optional<SystemError> StillRunning(std::u16string_view path) override;

  /// Whether a program that was given a file still runs.
  bool HoldsFiles();

 private:
  struct Started {
    ProcessId id;
    std::string program;  // native
    Job job;
    HandedFile file;
  };

  /// Forgets the programs that have ended.
  void Update();
  /// The running processes of the program at `native`, those started here by their jobs.
  std::vector<std::vector<pid_t>> InstancesOf(const std::string& native) const;

  DrivePaths drives_;
  ProgramWindows& windows_;
  std::vector<Started> started_;
  ProcessId last_ = 0;
};

}  // namespace lumenote
