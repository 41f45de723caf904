// Programs of a POSIX system, addressed by drive-letter paths.
#pragma once
#include <map>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

#include "backends/posix/folders/DrivePaths.h"
#include "backends/posix/programs/ProgramWindows.h"
#include "backends/posix/programs/StartedProgram.h"
#include "platform/Processes.h"

namespace lumenote {

/// Programs outlive this object; what it started is collected at every call, so that none stays
/// behind as a zombie.
class PosixProcesses : public Processes {
 public:
  /// `windows` outlives it; null where the desktop does not tell.
  explicit PosixProcesses(DrivePaths drives, ProgramWindows* windows = nullptr)
      : drives_(std::move(drives)), windows_(windows) {}
  PosixProcesses(const PosixProcesses&) = delete;
  PosixProcesses& operator=(const PosixProcesses&) = delete;
  ~PosixProcesses() override { Collect(); }

  /// Drive-letter paths among the arguments become native ones, and a word processor's template
  /// switch is left out: it means nothing to a program of this system.
  ProcessId Start(std::u16string_view commandLine) override;
  bool IsRunning(ProcessId process) override;
  /// Through its windows a program that has some, which may ask its user first; any other with the
  /// signal that it may heed in its own way.
  std::optional<SystemError> Terminate(std::u16string_view path) override;
  std::optional<SystemError> StillRunning(std::u16string_view path) override;

  /// Takes notice of what has ended meanwhile.
  void Collect();
  /// Whether nothing that was started still runs, as far as noticed.
  bool Idle() const { return started_.empty(); }
  /// Whether a program that was given a file still runs.
  bool HoldsFiles();

 private:
  /// What runs of the program at `native`, by process group.
  std::map<pid_t, std::vector<pid_t>> InstancesOf(const std::string& native) const;

  DrivePaths drives_;
  ProgramWindows* windows_;
  std::vector<StartedProgram> started_;  // until nothing of them is left
  ProcessId last_ = 0;
};

}  // namespace lumenote
