// Starting, watching and ending programs.
#include "backends/posix/PosixProcesses.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "backends/posix/Errors.h"
#include "backends/posix/ProcessTable.h"
#include "base/Strings.h"
#include "platform/ProgramCommand.h"

namespace lumenote {
namespace {

/// How a program is started: in a group of its own, with the signals as they are by default, and
/// nothing to read.
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

  /// The new process's number; raises what `AccessError` says.
  pid_t Spawn(std::vector<std::string> words) const {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    const int error =
        posix_spawn(&process, words[0].c_str(), &actions_, &attributes_, arguments.data(), environ);
    if (error != 0) throw AccessError(error, words[0]);
    return process;
  }

 private:
  posix_spawnattr_t attributes_;
  posix_spawn_file_actions_t actions_;
};

/// Only a path on a drive begins so; and only the template switch begins with a slash, since native
/// paths never stand on a command line here.
bool IsTemplateSwitch(std::u16string_view word) { return word.starts_with(u"/l"); }

std::string NativeArgument(const DrivePaths& drives, const std::u16string& word) {
  return word.substr(1, 2) == u":\\" ? drives.ToNative(word) : ToUtf8(word);
}

std::vector<std::string> NativeWords(const DrivePaths& drives, std::u16string_view commandLine) {
  const std::vector<std::u16string> words = SplitCommandLine(commandLine);
  if (words.empty()) throw RuntimeError(ErrorNumber::FileNotFound);
  std::vector<std::string> native{drives.ToNative(words[0])};
  for (auto word = words.begin() + 1; word != words.end(); ++word)
    if (!IsTemplateSwitch(*word)) native.push_back(NativeArgument(drives, *word));
  return native;
}

SystemError ErrorOf(int number) {
  return {number, FromUtf8(std::generic_category().message(number))};
}

}  // namespace

ProcessId PosixProcesses::Start(std::u16string_view commandLine) {
  Collect();
  std::vector<std::string> words = NativeWords(drives_, commandLine);
  const pid_t leader = SpawnSettings().Spawn(words);
  started_.push_back({++last_, leader, std::move(words[0])});
  return last_;
}

bool PosixProcesses::IsRunning(ProcessId process) {
  Collect();
  return std::any_of(started_.begin(), started_.end(),
                     [&](const Started& program) { return program.id == process; });
}

void PosixProcesses::Collect() {
  for (Started& program : started_) {
    if (!program.leaderEnded) program.leaderEnded = waitpid(program.leader, nullptr, WNOHANG) != 0;
  }
  std::erase_if(started_, [](const Started& program) {
    return program.leaderEnded && !IsGroupRunning(program.leader);
  });
}

std::vector<pid_t> PosixProcesses::OwnLeaders(const std::string& native) const {
  std::vector<pid_t> leaders;
  for (const Started& program : started_)
    if (!program.leaderEnded && program.program == native) leaders.push_back(program.leader);
  return leaders;
}

std::optional<SystemError> PosixProcesses::Terminate(std::u16string_view path) {
  Collect();
  const std::string native = drives_.ToNative(path);
  int failure = 0;
  const auto ask = [&](pid_t target) {
    if (kill(target, SIGTERM) != 0 && errno != ESRCH) failure = errno;
  };
  for (const pid_t leader : OwnLeaders(native)) ask(-leader);
  for (const pid_t process : ProcessesOf(native)) ask(process);
  if (failure == 0) return std::nullopt;
  return ErrorOf(failure);
}

std::optional<SystemError> PosixProcesses::Lingering(std::u16string_view path) {
  Collect();
  const std::string native = drives_.ToNative(path);
  if (OwnLeaders(native).empty() && ProcessesOf(native).empty()) return std::nullopt;
  return ErrorOf(ETIMEDOUT);
}

}  // namespace lumenote
