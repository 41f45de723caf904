// Starts, watches and ends programs.
#include "backends/posix/programs/PosixProcesses.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <sys/stat.h>
#include <system_error>

#include "backends/posix/programs/ProcessTable.h"
#include "backends/posix/programs/Spawn.h"
#include "base/FileAddresses.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "platform/Paths.h"
#include "platform/ProgramCommand.h"

namespace lumenote {
namespace {

/// Only a drive path begins like this; and only the template switch begins with a slash, since
/// native paths never occur on these command lines.
bool IsOnDrive(std::u16string_view word) { return word.substr(0, 3).ends_with(u":\\"); }
bool IsTemplateSwitch(std::u16string_view word) { return word.starts_with(u"/l"); }

std::vector<std::string> NativeWords(const DrivePaths& drives,
                                     const std::vector<std::u16string>& words) {
  std::vector<std::string> native{drives.ToNative(words[0])};
  for (auto word = words.begin() + 1; word != words.end(); ++word)
    if (!IsTemplateSwitch(*word))
      native.push_back(IsOnDrive(*word) ? drives.ToNative(*word) : ToUtf8(*word));
  return native;
}

/// Name of the file argument; empty without one.
std::string NameOfFile(const std::vector<std::u16string>& words) {
  const auto file = std::find_if(words.begin() + 1, words.end(), IsOnDrive);
  return file == words.end() ? std::string() : ToUtf8(FileName(*file));
}

SystemError ErrorOf(int number) {
  return {number, FromUtf8(std::generic_category().message(number))};
}

/// Returns 0 or an errno value.
int Signal(const std::vector<pid_t>& processes) {
  int failure = 0;
  for (const pid_t process : processes)
    if (kill(process, SIGTERM) != 0 && errno != ESRCH) failure = errno;
  return failure;
}

bool IsProgram(const std::string& path) {
  struct stat info {};
  return stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) && (info.st_mode & S_IXUSR) != 0;
}

}  // namespace

ProcessId PosixProcesses::Start(std::u16string_view commandLine) {
  Reap();
  const std::vector<std::u16string> words = SplitCommandLine(commandLine);
  if (words.empty()) throw RuntimeError(ErrorNumber::FileNotFound);
  std::vector<std::string> native = NativeWords(drives_, words);
  const pid_t leader = Spawn(native);
  started_.emplace_back(++last_, leader, std::move(native[0]), NameOfFile(words));
  return last_;
}

void PosixProcesses::Open(std::u16string_view address) {
  if (std::ranges::any_of(PathsOf(address), IsProgram)) return;
  Reap();
  try {
    const pid_t leader = SpawnFromPath({"xdg-open", ToUtf8(address)});
    started_.emplace_back(++last_, leader, std::string(), std::string());
  } catch (const RuntimeError&) {
    // No desktop: nothing to open it with.
  }
}

bool PosixProcesses::IsRunning(ProcessId process) {
  Reap();
  return std::any_of(started_.begin(), started_.end(),
                     [&](const StartedProgram& program) { return program.Id() == process; });
}

void PosixProcesses::Reap() {
  std::erase_if(started_, [&](StartedProgram& program) { return !program.IsRunning(windows_); });
}

bool PosixProcesses::HoldsFiles() {
  Reap();
  return std::any_of(started_.begin(), started_.end(),
                     [](const StartedProgram& program) { return program.HasFile(); });
}

std::map<pid_t, std::vector<pid_t>> PosixProcesses::InstancesOf(const std::string& native) const {
  std::map<pid_t, std::vector<pid_t>> instances;
  for (const ProcessEntry& process : ProcessesOf(native))
    instances[process.group].push_back(process.id);
  for (const StartedProgram& program : started_)
    if (const auto group = program.GroupOf(native)) instances[*group] = ProcessesOfGroup(*group);
  return instances;
}

std::optional<SystemError> PosixProcesses::Terminate(std::u16string_view path) {
  Reap();
  int failure = 0;
  for (const auto& [group, processes] : InstancesOf(drives_.ToNative(path))) {
    if (windows_ && windows_->AskToClose(processes)) continue;
    if (const int error = Signal(processes)) failure = error;
  }
  if (failure == 0) return std::nullopt;
  return ErrorOf(failure);
}

std::optional<SystemError> PosixProcesses::StillRunning(std::u16string_view path) {
  Reap();
  if (InstancesOf(drives_.ToNative(path)).empty()) return std::nullopt;
  return ErrorOf(ETIMEDOUT);
}

}  // namespace lumenote
