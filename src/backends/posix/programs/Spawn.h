// Starting a process.
#pragma once
#include <string>
#include <sys/types.h>
#include <vector>

namespace lumenote {

/// Starts the program whose native path is the first word, without a shell: in a process group of
/// its own, which it leads, with the signals as they are by default, and nothing to read. Raises
/// what `AccessError` says.
pid_t Spawn(std::vector<std::string> words);

}  // namespace lumenote
