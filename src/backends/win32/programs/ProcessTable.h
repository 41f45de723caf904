// The system's table of running processes.
#pragma once
#include <string>
#include <sys/types.h>
#include <vector>

namespace lumenote {

/// This user's processes, except this one, whose executable is exactly the file at `native`.
std::vector<pid_t> ProcessesOf(const std::string& native);

}  // namespace lumenote
