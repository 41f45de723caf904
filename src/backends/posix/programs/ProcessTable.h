// The system's table of running processes.
#pragma once
#include <string>
#include <sys/types.h>
#include <vector>

namespace lumenote {

/// A process that has not ended.
struct ProcessEntry {
  pid_t id = 0;
  pid_t group = 0;
};

/// All processes of the system; empty if it does not tell.
std::vector<ProcessEntry> RunningProcesses();
/// Whether a process of the group is still running; zombies do not count. `member`, 0 at first,
/// caches a running process: while that one runs the others are not examined.
bool IsGroupRunning(pid_t group, pid_t& member);
std::vector<pid_t> ProcessesOfGroup(pid_t group);
/// This user's processes, except this one, whose executable is exactly the file at `native`, links
/// followed. A script's executable is its interpreter, so scripts never match.
std::vector<ProcessEntry> ProcessesOf(const std::string& native);

}  // namespace lumenote
