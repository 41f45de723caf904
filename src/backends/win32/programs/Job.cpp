#include "backends/win32/programs/Job.h"

#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"
#include "backends/win32/files/WideNames.h"

namespace lumenote {

Job::Job(const std::string& program, std::wstring commandLine)
    : job_(CreateJobObjectW(nullptr, nullptr)) {
  STARTUPINFOW window = {};
  window.cb = sizeof window;
  window.dwFlags = STARTF_USESHOWWINDOW;
  window.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION made = {};
  if (!CreateProcessW(SystemPath(program).c_str(), commandLine.data(), nullptr, nullptr, FALSE,
                      CREATE_SUSPENDED, nullptr, nullptr, &window, &made))
    throw AccessError(LastError(), program);
  process_ = Handle(made.hProcess);
  const Handle thread(made.hThread);
  // Before the program runs, so that no process of its own escapes.
  if (job_ && !AssignProcessToJobObject(job_.Get(), process_.Get())) job_ = Handle();
  ResumeThread(thread.Get());
}

bool Job::IsRunning() const {
  JOBOBJECT_BASIC_ACCOUNTING_INFORMATION info = {};
  if (job_ && QueryInformationJobObject(job_.Get(), JobObjectBasicAccountingInformation, &info,
                                        sizeof info, nullptr))
    return info.ActiveProcesses > 0;
  return WaitForSingleObject(process_.Get(), 0) == WAIT_TIMEOUT;
}

std::vector<pid_t> Job::Processes() const {
  constexpr std::size_t kMost = 1000;
  std::vector<ULONG_PTR> buffer(kMost);
  auto* list = reinterpret_cast<JOBOBJECT_BASIC_PROCESS_ID_LIST*>(buffer.data());
  const auto size = static_cast<DWORD>(kMost * sizeof(ULONG_PTR));
  if (!job_ ||
      !QueryInformationJobObject(job_.Get(), JobObjectBasicProcessIdList, list, size, nullptr))
    return IsRunning() ? std::vector{static_cast<pid_t>(GetProcessId(process_.Get()))}
                       : std::vector<pid_t>();
  return {list->ProcessIdList, list->ProcessIdList + list->NumberOfProcessIdsInList};
}

}  // namespace lumenote
