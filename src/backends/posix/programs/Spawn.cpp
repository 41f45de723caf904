#include "backends/posix/programs/Spawn.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>
#include <utility>

#include "backends/native/files/Errors.h"

namespace lumenote {
namespace {

class SpawnSettings {
 public:
  SpawnSettings() {
    posix_spawnattr_init(&attributes_);
    posix_spawn_file_actions_init(&actions_);
    sigset_t signals;
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    posix_spawnattr_setpgroup(&attributes_, 0);
    posix_spawnattr_setflags(
        &attributes_, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;
  ~SpawnSettings() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }

  const posix_spawnattr_t* Attributes() const { return &attributes_; }
  const posix_spawn_file_actions_t* Actions() const { return &actions_; }

 private:
  posix_spawnattr_t attributes_{};
  posix_spawn_file_actions_t actions_{};
};

using SpawnCall = decltype(posix_spawn);

pid_t SpawnBy(SpawnCall& call, std::vector<std::string> words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const SpawnSettings settings;
  pid_t process = 0;
  const int error = call(&process, words[0].c_str(), settings.Actions(), settings.Attributes(),
                         arguments.data(), environ);
  if (error != 0) throw AccessError(error, words[0]);
  return process;
}

}  // namespace

pid_t Spawn(std::vector<std::string> words) { return SpawnBy(posix_spawn, std::move(words)); }

pid_t SpawnFromPath(std::vector<std::string> words) {
  return SpawnBy(posix_spawnp, std::move(words));
}

}  // namespace lumenote
