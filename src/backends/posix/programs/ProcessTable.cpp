// Reads the process file system.
#include "backends/posix/programs/ProcessTable.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lumenote {
namespace {

namespace fs = std::filesystem;

constexpr const char* kProcesses = "/proc";

std::string FolderOf(pid_t process) {
  return std::string(kProcesses) + "/" + std::to_string(process);
}

std::optional<pid_t> NumberOf(std::string_view name) {
  pid_t number = 0;
  const char* end = name.data() + name.size();
  const auto read = std::from_chars(name.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

/// Parses the status line after the program's name (which may contain anything): state, parent,
/// group. Empty for a process that has ended.
std::optional<ProcessEntry> ReadEntry(pid_t process) {
  std::ifstream file(FolderOf(process) + "/stat");
  std::string line;
  std::getline(file, line);
  const std::size_t nameEnd = line.rfind(')');
  if (nameEnd == std::string::npos) return std::nullopt;
  std::istringstream fields(line.substr(nameEnd + 1));
  char state = 'Z';
  pid_t parent = 0;
  ProcessEntry entry{process};
  fields >> state >> parent >> entry.group;
  if (!fields || state == 'Z' || state == 'X') return std::nullopt;
  return entry;
}

bool BelongsToUser(pid_t process) {
  struct stat info = {};
  return stat(FolderOf(process).c_str(), &info) == 0 && info.st_uid == geteuid();
}

}  // namespace

std::vector<ProcessEntry> RunningProcesses() {
  std::vector<ProcessEntry> entries;
  std::error_code error;
  for (fs::directory_iterator folder(kProcesses, error), end; !error && folder != end;
       folder.increment(error)) {
    const auto process = NumberOf(folder->path().filename().string());
    const auto entry = process ? ReadEntry(*process) : std::nullopt;
    if (entry) entries.push_back(*entry);
  }
  return entries;
}

bool IsGroupRunning(pid_t group, pid_t& member) {
  if (kill(-group, 0) != 0 && errno == ESRCH) return false;
  const auto known = member == 0 ? std::nullopt : ReadEntry(member);
  if (known && known->group == group) return true;
  const std::vector<ProcessEntry> entries = RunningProcesses();
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [&](const ProcessEntry& entry) { return entry.group == group; });
  if (found == entries.end()) return entries.empty();
  member = found->id;
  return true;
}

std::vector<pid_t> ProcessesOfGroup(pid_t group) {
  std::vector<pid_t> found;
  for (const ProcessEntry& entry : RunningProcesses())
    if (entry.group == group) found.push_back(entry.id);
  return found;
}

std::vector<ProcessEntry> ProcessesOf(const std::string& native) {
  std::vector<ProcessEntry> found;
  for (const ProcessEntry& entry : RunningProcesses()) {
    std::error_code error;
    const bool same = fs::equivalent(FolderOf(entry.id) + "/exe", native, error);
    if (same && !error && entry.id != getpid() && BelongsToUser(entry.id)) found.push_back(entry);
  }
  return found;
}

}  // namespace lumenote
