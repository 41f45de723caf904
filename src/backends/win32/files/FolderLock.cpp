// A folder cannot be locked here, so a mutex is named after it.

#include <string>

#include "backends/native/files/Disk.h"
#include "backends/win32/files/Handles.h"

namespace lumenote {
namespace {

/// Both ends on one thread: the system asks for that.
class OwnedMutex {
 public:
  explicit OwnedMutex(const std::wstring& name)
      : mutex_(CreateMutexW(nullptr, FALSE, name.c_str())) {
    constexpr DWORD kPatience = 5000;  // milliseconds
    const DWORD result = mutex_ ? WaitForSingleObject(mutex_, kPatience) : WAIT_FAILED;
    owned_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
  }
  OwnedMutex(const OwnedMutex&) = delete;
  OwnedMutex& operator=(const OwnedMutex&) = delete;
  ~OwnedMutex() {
    if (owned_) ReleaseMutex(mutex_);
    if (mutex_) CloseHandle(mutex_);
  }

 private:
  HANDLE mutex_;
  bool owned_ = false;
};

}  // namespace

std::shared_ptr<void> LockFolderOf(const std::string& path) {
  const std::optional<FileStatus> folder = StatusOf(ParentOf(path));
  if (!folder) return {};
  return std::make_shared<OwnedMutex>(L"Lumenote-" + std::to_wstring(folder->id.volume) + L"-" +
                                      std::to_wstring(folder->id.number));
}

}  // namespace lumenote
