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
/// notice, do not count.
bool IsGroupRunning(pid_t group);
/// This user's processes, but for this one, whose executable is exactly the file at `native`, links
/// followed.
std::vector<pid_t> ProcessesOf(const std::string& native);

}  // namespace lumenote
