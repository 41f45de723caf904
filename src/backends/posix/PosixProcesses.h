// Programs of a POSIX system, addressed by drive-letter paths.
#pragma once
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

#include "backends/posix/DrivePaths.h"
#include "platform/Processes.h"

namespace lumenote {

/// Every program leads a process group of its own and counts as running while any process of the
/// group does, so that one which hands over to another and returns has not ended. Programs outlive
/// this object; what it started is collected at every call, so that none stays behind as a zombie.
class PosixProcesses : public Processes {
 public:
  explicit PosixProcesses(DrivePaths drives) : drives_(std::move(drives)) {}
  PosixProcesses(const PosixProcesses&) = delete;
  PosixProcesses& operator=(const PosixProcesses&) = delete;
  ~PosixProcesses() override { Collect(); }

  /// Drive-letter paths among the arguments become native ones, and a word processor's template
  /// switch is left out: it means nothing to a program of this system.
  ProcessId Start(std::u16string_view commandLine) override;
  bool IsRunning(ProcessId process) override;
  /// With the signal that a program may heed in its own way.
  std::optional<SystemError> Terminate(std::u16string_view path) override;
  std::optional<SystemError> Lingering(std::u16string_view path) override;

  /// Takes notice of what has ended meanwhile.
  void Collect();
  /// Whether nothing that was started still runs, as far as noticed.
  bool Idle() const { return started_.empty(); }

 private:
  struct Started {
    ProcessId id;
    pid_t leader;
    std::string program;  // native path, as it was started
    bool leaderEnded = false;
  };

  /// Programs of `native` whose leader still runs; its number is nobody else's until then.
  std::vector<pid_t> OwnLeaders(const std::string& native) const;

  DrivePaths drives_;
  std::vector<Started> started_;  // until the whole group has ended
  ProcessId last_ = 0;
};

}  // namespace lumenote
