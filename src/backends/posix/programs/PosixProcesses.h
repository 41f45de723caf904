// Programs of a POSIX system, named by drive-letter paths.
#pragma once
#include <map>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

#include "backends/native/folders/DrivePaths.h"
#include "backends/native/programs/ProgramWindows.h"
#include "backends/posix/programs/StartedProgram.h"
#include "platform/Processes.h"

namespace lumenote {

/// Programs outlive this object. Each call reaps children that have ended, so that none stays a
/// zombie.
class PosixProcesses : public Processes {
 public:
  /// `windows` must outlive it; null if the desktop cannot tell about windows.
  explicit PosixProcesses(DrivePaths drives, ProgramWindows* windows = nullptr)
      : drives_(std::move(drives)), windows_(windows) {}
  PosixProcesses(const PosixProcesses&) = delete;
  PosixProcesses& operator=(const PosixProcesses&) = delete;
  ~PosixProcesses() override { Reap(); }

  /// Drive-letter paths among the arguments become native, and a word processor's template switch
  /// is dropped: it means nothing to programs of this system.
  ProcessId Start(std::u16string_view commandLine) override;
  /// By the desktop's `xdg-open`; not what the system can execute.
  void Open(std::u16string_view address) override;
  bool IsRunning(ProcessId process) override;
  /// Closes the windows of a program that has some, so that it can ask its user first; sends others
  /// a signal that they can handle.
  std::optional<SystemError> Terminate(std::u16string_view path) override;
  std::optional<SystemError> StillRunning(std::u16string_view path) override;

  /// Reaps the children that have ended.
  void Reap();
  /// Whether no started program was still running at the last check.
  bool Idle() const { return started_.empty(); }
  /// Whether a program that was given a file still runs.
  bool HoldsFiles();

 private:
  /// The running processes of the program at `native`, by process group.
  std::map<pid_t, std::vector<pid_t>> InstancesOf(const std::string& native) const;

  DrivePaths drives_;
  ProgramWindows* windows_;
  std::vector<StartedProgram> started_;  // until all their processes have ended
  ProcessId last_ = 0;
};

}  // namespace lumenote
