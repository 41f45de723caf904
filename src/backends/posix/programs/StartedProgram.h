// A started program, until all its processes have ended.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "backends/native/programs/HandedFile.h"
#include "platform/Processes.h"

namespace lumenote {

/// A program leads a process group and runs while any process of the group does, so a launcher that
/// exits has not ended. A program that passes its file to a running instance of itself exits as
/// well; it counts as running while a window of another program shows the file's name.
class StartedProgram {
 public:
  /// `program` is the native path it was started by; `file` is the name of its file argument, or
  /// empty. `leader` is a child process that nobody else waits for.
  StartedProgram(ProcessId id, pid_t leader, std::string program, std::string file);

  ProcessId Id() const { return id_; }
  bool HasFile() const { return !file_.IsNone(); }
  /// The process group while its number cannot have been reused: as long as the leader is not
  /// reaped.
  std::optional<pid_t> GroupOf(std::string_view program) const;
  /// Checks again, and reaps the leader if it has ended. `windows` may be null.
  bool IsRunning(const ProgramWindows* windows);

 private:
  bool IsGroupAlive();

  ProcessId id_;
  pid_t leader_;
  std::string program_;
  HandedFile file_;
  bool ended_ = false;
  bool leaderEnded_ = false;
  pid_t member_ = 0;  // a process of the group that ran at the last check
};

}  // namespace lumenote
