#include "backends/win32/programs/ProcessTable.h"

#include "backends/native/files/Disk.h"
#include "backends/win32/files/WideNames.h"
#include "backends/win32/programs/Job.h"
#include "backends/win32/system/System.h"

namespace lumenote {
namespace {

/// Native; empty for a process that this user may not ask, another user's among them.
std::string ExecutableOf(DWORD id) {
  const Handle process(
      OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | PROCESS_TERMINATE, FALSE, id));
  std::wstring path(32768, L'\0');
  auto size = static_cast<DWORD>(path.size());
  if (!process || !QueryFullProcessImageNameW(process.Get(), 0, path.data(), &size)) return {};
  return NativePath({path.data(), size});
}

bool EqualIgnoringCase(const std::wstring& one, const std::wstring& other) {
  return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

}  // namespace

std::vector<pid_t> ProcessesOf(const std::string& native) {
  std::vector<pid_t> found;
  const std::optional<FileStatus> wanted = StatusOf(native);
  const std::wstring name = SystemPath(native.substr(native.rfind('/') + 1));
  const Handle all(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  PROCESSENTRY32W entry = {};
  entry.dwSize = sizeof entry;
  for (BOOL more = wanted && Process32FirstW(all.Get(), &entry); more;
       more = Process32NextW(all.Get(), &entry)) {
    const bool another = entry.th32ProcessID != GetCurrentProcessId();
    if (!another || !EqualIgnoringCase(entry.szExeFile, name)) continue;
    const std::optional<FileStatus> status = StatusOf(ExecutableOf(entry.th32ProcessID));
    if (status && status->id == wanted->id)
      found.push_back(static_cast<pid_t>(entry.th32ProcessID));
  }
  return found;
}

}  // namespace lumenote
