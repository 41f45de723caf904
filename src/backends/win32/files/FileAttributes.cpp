// Copies attributes and access lists, and tells what a new file would lack.
#include "backends/native/files/FileAttributes.h"

#include <string>
#include <vector>

#include "backends/win32/files/Handles.h"

namespace lumenote {
namespace {

constexpr SECURITY_INFORMATION kRights =
    OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;

/// Attributes that a plain new file cannot be given.
constexpr DWORD kSpecial = FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_ENCRYPTED |
                           FILE_ATTRIBUTE_SPARSE_FILE | FILE_ATTRIBUTE_REPARSE_POINT;

FILE_BASIC_INFO BasicsOf(const OpenFile& file) {
  FILE_BASIC_INFO info = {};
  GetFileInformationByHandleEx(HandleOf(file), FileBasicInfo, &info, sizeof info);
  return info;
}

/// A zero time leaves that time alone.
bool SetBasics(const OpenFile& file, const FILE_BASIC_INFO& info) {
  FILE_BASIC_INFO wanted = info;
  return SetFileInformationByHandle(HandleOf(file), FileBasicInfo, &wanted, sizeof wanted);
}

/// Owner, group and access list as one block of bytes; empty if they cannot be read.
std::vector<char> RightsOf(const OpenFile& file) {
  DWORD size = 0;
  GetKernelObjectSecurity(HandleOf(file), kRights, nullptr, 0, &size);
  std::vector<char> rights(size);
  if (!GetKernelObjectSecurity(HandleOf(file), kRights, rights.data(), size, &size)) return {};
  return rights;
}

bool CopyRights(const OpenFile& from, const OpenFile& to) {
  std::vector<char> wanted = RightsOf(from);
  if (wanted.empty()) return false;
  if (RightsOf(to) == wanted) return true;
  SetKernelObjectSecurity(HandleOf(to), DACL_SECURITY_INFORMATION, wanted.data());
  return RightsOf(to) == wanted;
}

/// Whether the file has more streams than its content, such as the mark of a download.
bool HasStreams(const OpenFile& file) {
  constexpr std::size_t kSize = 65536;
  std::vector<std::uint64_t> buffer(kSize / sizeof(std::uint64_t));
  const bool told = GetFileInformationByHandleEx(HandleOf(file), FileStreamInfo, buffer.data(),
                                                 static_cast<DWORD>(kSize));
  return told && reinterpret_cast<const FILE_STREAM_INFO*>(buffer.data())->NextEntryOffset != 0;
}

}  // namespace

bool CopyAttributes(const OpenFile& from, const OpenFile& to) {
  const FILE_BASIC_INFO old = BasicsOf(from);
  FILE_BASIC_INFO wanted = {};
  wanted.CreationTime = old.CreationTime;
  wanted.FileAttributes = old.FileAttributes & ~kSpecial;
  const bool same = (old.FileAttributes & kSpecial) == 0 && !HasStreams(from);
  return CopyRights(from, to) && SetBasics(to, wanted) && same;
}

// Who may read and write is in the access list, which a new file has from its folder.
void CopyMode(const OpenFile& from, const OpenFile& to) {
  FILE_BASIC_INFO wanted = {};
  wanted.FileAttributes = BasicsOf(from).FileAttributes & ~kSpecial;
  SetBasics(to, wanted);
}

void CopyTime(const OpenFile& from, const OpenFile& to) {
  FILE_BASIC_INFO wanted = {};
  wanted.LastWriteTime = BasicsOf(from).LastWriteTime;
  SetBasics(to, wanted);
}

}  // namespace lumenote
