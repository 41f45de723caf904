#include "backends/posix/programs/StartedProgram.h"

#include <sys/wait.h>
#include <utility>

#include "backends/posix/programs/ProcessTable.h"

namespace lumenote {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// A program that passes its file on exits within the first time; the file's window appears within
// the second.
constexpr seconds kHandsOverWithin(10);
constexpr seconds kShownWithin(2);
constexpr milliseconds kBetweenLooks(250);

}  // namespace

StartedProgram::StartedProgram(ProcessId id, pid_t leader, std::string program, std::string file)
    : id_(id), leader_(leader), program_(std::move(program)), file_(std::move(file)) {}

std::optional<pid_t> StartedProgram::GroupOf(std::string_view program) const {
  if (leaderEnded_ || program_ != program) return std::nullopt;
  return leader_;
}

bool StartedProgram::IsRunning(const ProgramWindows* windows) {
  if (!end_ && IsGroupAlive()) return true;
  if (!end_) end_ = Clock::now();
  return windows && !file_.empty() && IsHandedOver(*windows);
}

bool StartedProgram::IsGroupAlive() {
  if (!leaderEnded_) leaderEnded_ = waitpid(leader_, nullptr, WNOHANG) != 0;
  return !leaderEnded_ || IsGroupRunning(leader_, member_);
}

bool StartedProgram::IsHandedOver(const ProgramWindows& windows) {
  const Clock::time_point now = Clock::now();
  if (now >= nextLook_) {
    shown_ = windows.AnyTitleContains(file_);
    nextLook_ = now + kBetweenLooks;
  }
  return shown_ || (*end_ < start_ + kHandsOverWithin && now < *end_ + kShownWithin);
}

}  // namespace lumenote
