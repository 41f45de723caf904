#include "backends/posix/programs/StartedProgram.h"

#include <sys/wait.h>
#include <utility>

#include "backends/posix/programs/ProcessTable.h"

namespace lumenote {

StartedProgram::StartedProgram(ProcessId id, pid_t leader, std::string program, std::string file)
    : id_(id), leader_(leader), program_(std::move(program)), file_(std::move(file)) {}

std::optional<pid_t> StartedProgram::GroupOf(std::string_view program) const {
  if (leaderEnded_ || program_ != program) return std::nullopt;
  return leader_;
}

bool StartedProgram::IsRunning(const ProgramWindows* windows) {
  if (!ended_) ended_ = !IsGroupAlive();
  return !ended_ || (windows && file_.IsOpen(*windows));
}

bool StartedProgram::IsGroupAlive() {
  if (!leaderEnded_) leaderEnded_ = waitpid(leader_, nullptr, WNOHANG) != 0;
  return !leaderEnded_ || IsGroupRunning(leader_, member_);
}

}  // namespace lumenote
