// Starts a process.
#pragma once
#include <string>
#include <sys/types.h>
#include <vector>

namespace lumenote {

/// Starts the program whose native path is the first word, without a shell, as leader of a process
/// group of its own, with default signal handling and empty standard input. Raises as `AccessError`
/// says.
pid_t Spawn(std::vector<std::string> words);
/// The same for a program that is found by its name, as shells do.
pid_t SpawnFromPath(std::vector<std::string> words);

}  // namespace lumenote
