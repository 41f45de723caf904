// One program that was started, until nothing of it is left.
#pragma once
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "backends/posix/programs/ProgramWindows.h"
#include "platform/Processes.h"

namespace lumenote {

/// A program leads a process group of its own and runs while any process of the group does, so that
/// a launcher that returns has not ended. One that finds an instance of itself running hands its
/// file over to that and returns as well; it goes on for as long as another program's window shows
/// the file's name.
class StartedProgram {
 public:
  /// `program` is the native path as it was started; `file`, the name of the file it was given,
  /// may be empty. `leader` is a child of this process that nobody else waits for.
  StartedProgram(ProcessId id, pid_t leader, std::string program, std::string file);

  ProcessId Id() const { return id_; }
  bool HasFile() const { return !file_.empty(); }
  /// The group, for as long as its number cannot be anybody else's: while the leader runs.
  std::optional<pid_t> GroupOf(std::string_view program) const;
  /// Looks anew, and collects the leader when it has ended. `windows` may be null.
  bool IsRunning(const ProgramWindows* windows);

 private:
  using Clock = std::chrono::steady_clock;

  bool IsGroupAlive();
  bool IsHandedOver(const ProgramWindows& windows);

  ProcessId id_;
  pid_t leader_;
  std::string program_;
  std::string file_;
  bool leaderEnded_ = false;
  pid_t member_ = 0;  // a process of the group that ran when last looked at
  Clock::time_point start_ = Clock::now();
  std::optional<Clock::time_point> end_;  // of the group
  Clock::time_point nextLook_ = start_;
  bool shown_ = false;
};

}  // namespace lumenote
