// What the system says about running processes.
#pragma once
#include <string>
#include <sys/types.h>
#include <vector>

namespace lumenote {

/// One process that has not ended.
struct ProcessEntry {
  pid_t id = 0;
  pid_t group = 0;
};

/// The processes of the system; empty where it does not tell.
std::vector<ProcessEntry> RunningProcesses();
/// Whether any process of the group has not ended. Those that have, and wait for their parent to
/// notice, do not count. `member`, 0 at first, remembers one that runs: as long as it does the
/// others are not looked at.
bool IsGroupRunning(pid_t group, pid_t& member);
std::vector<pid_t> ProcessesOfGroup(pid_t group);
/// This user's processes, but for this one, whose executable is exactly the file at `native`, links
/// followed. A script's executable is its interpreter, so no script is ever among them.
std::vector<ProcessEntry> ProcessesOf(const std::string& native);

}  // namespace lumenote
