#include "backends/native/files/FileActs.h"

#include "backends/win32/files/Handles.h"
#include "backends/win32/files/WideNames.h"

namespace lumenote {

int SetReadOnly(const std::string& path, bool on) {
  const DWORD others = AttributesOf(path) & ~DWORD{FILE_ATTRIBUTE_READONLY};
  const DWORD wanted = on ? others | FILE_ATTRIBUTE_READONLY : others;
  return ErrorUnless(SetFileAttributesW(SystemPath(path).c_str(), wanted));
}

int ShiftTime(const std::string& path, std::int64_t seconds) {
  constexpr std::int64_t kSecond = 10'000'000;  // in units of 100 ns
  const OpenFile file = Open(path, FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES, OPEN_EXISTING);
  if (!file.IsOpen()) return LastError();
  const FILETIME old = InfoOf(file).ftLastWriteTime;
  ULARGE_INTEGER time = {};
  time.LowPart = old.dwLowDateTime;
  time.HighPart = old.dwHighDateTime;
  time.QuadPart += static_cast<ULONGLONG>(seconds * kSecond);
  const FILETIME shifted = {time.LowPart, time.HighPart};
  return ErrorUnless(SetFileTime(HandleOf(file), nullptr, nullptr, &shifted));
}

int MakeHardLink(const std::string& name, const std::string& path) {
  return ErrorUnless(CreateHardLinkW(SystemPath(name).c_str(), SystemPath(path).c_str(), nullptr));
}

// Symbolic links need a right that few users have, and wine says yes but makes none.
int MakeSymbolicLink(const std::string& name, const std::string& path) {
  constexpr DWORD kAllowUnprivileged = 2;
  if (AttributesOf(name) != INVALID_FILE_ATTRIBUTES) return ERROR_ALREADY_EXISTS;
  CreateSymbolicLinkW(SystemPath(name).c_str(), SystemPath(path).c_str(), kAllowUnprivileged);
  return AttributesOf(name) != INVALID_FILE_ATTRIBUTES ? 0 : MakeHardLink(name, path);
}

}  // namespace lumenote
