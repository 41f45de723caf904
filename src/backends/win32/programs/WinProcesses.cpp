#include "backends/win32/programs/WinProcesses.h"

#include <algorithm>

#include "backends/native/files/Disk.h"
#include "backends/win32/files/WideNames.h"
#include "backends/win32/programs/ProcessTable.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"
#include "platform/Paths.h"
#include "platform/ProgramCommand.h"

// After the system's own header.
#include <shellapi.h>
#include <shlwapi.h>

namespace lumenote {
namespace {

/// Name of the file argument; empty without one.
std::string NameOfFile(const std::vector<std::u16string>& words) {
  const auto file = std::find_if(words.begin() + 1, words.end(), IsDrivePath);
  return file == words.end() ? std::string() : ToUtf8(FileName(*file));
}

SystemError ErrorOf(int number) {
  wchar_t text[512];
  constexpr DWORD kHow = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  DWORD length = FormatMessageW(kHow, nullptr, static_cast<DWORD>(number), 0, text, 512, nullptr);
  while (length > 0 && text[length - 1] <= L' ') --length;
  return {number, FromWide({text, length})};
}

/// Ends processes that have no windows. Returns 0 or an error number.
int End(const std::vector<pid_t>& processes) {
  int failure = 0;
  for (const pid_t id : processes) {
    const Handle process(OpenProcess(PROCESS_TERMINATE, FALSE, static_cast<DWORD>(id)));
    if (process && !TerminateProcess(process.Get(), 0)) failure = LastError();
  }
  return failure;
}

/// What to open for an address: of a file its path, which says more surely than the address whether
/// opening the file would start it; empty then.
std::wstring TargetOf(const std::wstring& address) {
  if (StrCmpNIW(address.c_str(), L"file:", 5) != 0) return address;
  wchar_t path[MAX_PATH] = {};
  DWORD length = MAX_PATH;
  const bool known = SUCCEEDED(PathCreateFromUrlW(address.c_str(), path, &length, 0));
  return known && !AssocIsDangerous(PathFindExtensionW(path)) ? path : std::wstring();
}

}  // namespace

ProcessId WinProcesses::Start(std::u16string_view commandLine) {
  Update();
  const std::vector<std::u16string> words = SplitCommandLine(commandLine);
  if (words.empty()) throw RuntimeError(ErrorNumber::FileNotFound);
  std::string program = drives_.ToNative(words[0]);
  Job job(program, ToWide(commandLine));
  started_.push_back({++last_, std::move(program), std::move(job), HandedFile(NameOfFile(words))});
  return last_;
}

void WinProcesses::Open(std::u16string_view address) {
  const std::wstring target = TargetOf(ToWide(address));
  if (!target.empty())
    ShellExecuteW(nullptr, L"open", target.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

bool WinProcesses::IsRunning(ProcessId process) {
  Update();
  return std::any_of(started_.begin(), started_.end(),
                     [&](const Started& program) { return program.id == process; });
}

void WinProcesses::Update() {
  std::erase_if(started_, [this](Started& program) {
    return !program.job.IsRunning() && !program.file.IsOpen(windows_);
  });
}

bool WinProcesses::HoldsFiles() {
  Update();
  return std::any_of(started_.begin(), started_.end(),
                     [](const Started& program) { return !program.file.IsNone(); });
}

std::vector<std::vector<pid_t>> WinProcesses::InstancesOf(const std::string& native) const {
  std::vector<std::vector<pid_t>> instances;
  for (const pid_t process : ProcessesOf(native)) instances.push_back({process});
  for (const Started& program : started_)
    if (program.program == native && program.job.IsRunning())
      instances.push_back(program.job.Processes());
  return instances;
}

std::optional<SystemError> WinProcesses::Terminate(std::u16string_view path) {
  Update();
  int failure = 0;
  for (const std::vector<pid_t>& processes : InstancesOf(drives_.ToNative(path))) {
    if (windows_.AskToClose(processes)) continue;
    if (const int error = End(processes)) failure = error;
  }
  if (failure == 0) return std::nullopt;
  return ErrorOf(failure);
}

std::optional<SystemError> WinProcesses::StillRunning(std::u16string_view path) {
  Update();
  if (InstancesOf(drives_.ToNative(path)).empty()) return std::nullopt;
  return ErrorOf(ERROR_TIMEOUT);
}

}  // namespace lumenote
