#include "backends/win32/files/Handles.h"

#include "backends/win32/files/WideNames.h"

namespace lumenote {
namespace {

constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

OpenFile OpenWith(const std::string& path, DWORD access, DWORD creation, DWORD flags, Links links) {
  if (links == Links::AreFiles) flags |= FILE_FLAG_OPEN_REPARSE_POINT;
  return Owned(
      CreateFileW(SystemPath(path).c_str(), access, kAll, nullptr, creation, flags, nullptr));
}

}  // namespace

OpenFile Open(const std::string& path, DWORD access, DWORD creation, Links links) {
  return OpenWith(path, access, creation, FILE_ATTRIBUTE_NORMAL, links);
}

OpenFile OpenToLook(const std::string& path, Links links) {
  return OpenWith(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, links);
}

BY_HANDLE_FILE_INFORMATION InfoOf(const OpenFile& file) {
  BY_HANDLE_FILE_INFORMATION info = {};
  if (!GetFileInformationByHandle(HandleOf(file), &info)) return {};
  return info;
}

bool SameFile(const OpenFile& one, const OpenFile& other) {
  const BY_HANDLE_FILE_INFORMATION first = InfoOf(one);
  const BY_HANDLE_FILE_INFORMATION second = InfoOf(other);
  return first.nNumberOfLinks > 0 && first.dwVolumeSerialNumber == second.dwVolumeSerialNumber &&
         first.nFileIndexHigh == second.nFileIndexHigh &&
         first.nFileIndexLow == second.nFileIndexLow;
}

std::int64_t InNanoseconds(const FILETIME& time) {
  constexpr std::int64_t kFrom1601To1970 = 116'444'736'000'000'000;  // in units of 100 ns
  return (static_cast<std::int64_t>(Joined(time.dwHighDateTime, time.dwLowDateTime)) -
          kFrom1601To1970) *
         100;
}

DWORD AttributesOf(const std::string& path) { return GetFileAttributesW(SystemPath(path).c_str()); }

}  // namespace lumenote
