// Files and folders by their native paths.
#include "backends/native/files/Disk.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <random>

#include "backends/native/files/Errors.h"
#include "backends/native/files/FileActs.h"
#include "backends/win32/files/Handles.h"
#include "backends/win32/files/WideNames.h"

namespace lumenote {
namespace {

constexpr DWORD kReadAndWrite = GENERIC_READ | GENERIC_WRITE;

/// More units than a position can count could not be edited, so larger files are not read.
constexpr std::uint64_t kLargestFile = std::numeric_limits<std::int32_t>::max();

std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

std::string RandomLetters() {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  std::random_device source;
  std::string letters(6, '\0');
  for (char& letter : letters) letter = kLetters[source() % kLetters.size()];
  return letters;
}

bool IsFolder(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsLink(DWORD attributes) { return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0; }

/// Whether a name is still taken by what is being deleted, until the last handle to it has gone.
bool IsGoing(const std::string& path) {
  return AttributesOf(path) == INVALID_FILE_ATTRIBUTES && LastError() == ERROR_ACCESS_DENIED;
}

/// Repeats the making of `path` for half a second while that name is going.
template <class Make>
int MakeOnceGone(const std::string& path, Make make) {
  int error = 0;
  Patiently([&] {
    error = make();
    return error == ERROR_ACCESS_DENIED && IsGoing(path) ? ERROR_SHARING_VIOLATION : error;
  });
  SetLastError(static_cast<DWORD>(error));
  return error;
}

OpenFile Create(const std::string& path, DWORD access, DWORD creation) {
  OpenFile file;
  MakeOnceGone(path, [&] {
    file = Open(path, access, creation, Links::AreFiles);
    return ErrorUnless(file.IsOpen());
  });
  return file;
}

int MakeFolder(const std::string& path) {
  return MakeOnceGone(
      path, [&] { return ErrorUnless(CreateDirectoryW(SystemPath(path).c_str(), nullptr)); });
}

}  // namespace

int LastError() { return static_cast<int>(GetLastError()); }

std::string ReadWholeFile(const std::string& path) {
  const OpenFile file = OpenToRead(path);
  if (!file.IsOpen()) throw AccessError(LastError(), path);
  const std::optional<std::uint64_t> size = SizeOf(file);
  if (!size) throw AccessError(LastError(), path);
  if (*size > kLargestFile || GetFileType(HandleOf(file)) != FILE_TYPE_DISK)
    throw RuntimeError(ErrorNumber::PathAccess);
  std::string bytes(*size, '\0');
  DWORD filled = 0;
  if (!ReadFile(HandleOf(file), bytes.data(), static_cast<DWORD>(*size), &filled, nullptr))
    throw AccessError(LastError(), path);
  bytes.resize(filled);
  return bytes;
}

// Whom a new file is private to is said by its folder's access list.
OpenFile CreateNew(const std::string& path, Permissions) {
  return Create(path, kReadAndWrite | WRITE_DAC, CREATE_NEW);
}

OpenFile Recreate(const std::string& path) { return Create(path, kReadAndWrite, CREATE_ALWAYS); }

OpenFile OpenExisting(const std::string& path) {
  OpenFile file = Open(path, kReadAndWrite, OPEN_EXISTING, Links::AreFiles);
  if (file.IsOpen() || LastError() != ERROR_ACCESS_DENIED) return file;
  return Open(path, GENERIC_READ, OPEN_EXISTING, Links::AreFiles);
}

OpenFile OpenToRead(const std::string& path) {
  OpenFile file;
  Patiently([&] {
    file = Open(path, GENERIC_READ, OPEN_EXISTING);
    return ErrorUnless(file.IsOpen());
  });
  return file;
}

OpenFile OpenToWrite(const std::string& path) { return Open(path, GENERIC_WRITE, OPEN_EXISTING); }

OpenFile OpenToAppend(const std::string& path) {
  return Open(path, GENERIC_READ | FILE_APPEND_DATA | FILE_WRITE_ATTRIBUTES, OPEN_ALWAYS);
}

bool IsTaken(int error) { return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS; }

bool IsMissing(int error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ||
         error == ERROR_DIRECTORY || error == ERROR_INVALID_NAME;
}

bool IsElsewhere(int error) { return error == ERROR_NOT_SAME_DEVICE; }

// The entries of folders are the file system's own business here.
int SyncToDisk(const std::string& path) {
  if (IsFolder(AttributesOf(path))) return 0;
  const OpenFile file = Open(path, GENERIC_WRITE, OPEN_EXISTING);
  return ErrorUnless(file.IsOpen() && FlushFileBuffers(HandleOf(file)));
}

// A target that somebody has open for a moment is "access denied" here.
int RenameOver(const std::string& from, const std::string& to) {
  constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  return Patiently([&] {
    const int error =
        ErrorUnless(MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(), kHow));
    return error == ERROR_ACCESS_DENIED ? ERROR_SHARING_VIOLATION : error;
  });
}

int RenameWithoutReplacing(const std::string& from, const std::string& to) {
  return Patiently([&] {
    return ErrorUnless(
        MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(), MOVEFILE_WRITE_THROUGH));
  });
}

int MakeFolders(const std::string& path) {
  if (IsFolder(AttributesOf(path))) return 0;
  const std::size_t separator = path.find_last_of("/\\");
  const bool hasParent = separator != path.npos && separator > 0 && path[separator - 1] != ':';
  if (hasParent) MakeFolders(path.substr(0, separator));
  const int error = MakeFolder(path);
  return IsFolder(AttributesOf(path)) ? 0 : error;
}

// New folders inherit the access list of the user's own folder, in which they are made.
void MakePrivateFolder(const std::string& path) {
  if (path.empty() || MakeFolders(path) != 0) throw RuntimeError(ErrorNumber::PathAccess);
}

std::string MakeUniqueFolder(const std::string& parent, const std::string& prefix) {
  int error = ERROR_ALREADY_EXISTS;
  for (int i = 0; i < 100 && error == ERROR_ALREADY_EXISTS; ++i) {
    const std::string folder = parent + "/" + prefix + RandomLetters();
    error = ErrorUnless(CreateDirectoryW(SystemPath(folder).c_str(), nullptr));
    if (error == 0) return folder;
  }
  return {};
}

bool IsRealFolder(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  return IsFolder(attributes) && !IsLink(attributes);
}

bool IsOwnFolder(const std::string& path) { return IsRealFolder(path); }

std::optional<std::vector<std::string>> AllNamesIn(const std::string& folder) {
  std::vector<std::string> names;
  WIN32_FIND_DATAW entry = {};
  const HANDLE search = FindFirstFileW(SystemPath(folder + "/*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return std::nullopt;
  for (bool more = true; more; more = FindNextFileW(search, &entry)) {
    const std::string name = NativePath(entry.cFileName);
    if (name != "." && name != "..") names.push_back(name);
  }
  const bool all = GetLastError() == ERROR_NO_MORE_FILES;
  FindClose(search);
  if (!all) return std::nullopt;
  return names;
}

int RemoveFile(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  const bool readOnly =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
  if (readOnly) SetReadOnly(path, false);
  const int error = Patiently([&] { return ErrorUnless(DeleteFileW(SystemPath(path).c_str())); });
  if (readOnly && error != 0) SetReadOnly(path, true);
  return error;
}

int RemoveEmptyFolder(const std::string& path) {
  return ErrorUnless(RemoveDirectoryW(SystemPath(path).c_str()));
}

int RemoveTree(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) return LastError();
  if (!IsFolder(attributes)) return RemoveFile(path);
  if (!IsLink(attributes))
    for (const std::string& name : NamesIn(path)) RemoveTree(path + "/" + name);
  return RemoveEmptyFolder(path);
}

std::optional<FileStatus> StatusOf(const std::string& path) {
  const OpenFile file = OpenToLook(path);
  if (!file.IsOpen()) return std::nullopt;
  const BY_HANDLE_FILE_INFORMATION info = InfoOf(file);
  return FileStatus{
      .id = {info.dwVolumeSerialNumber, Joined(info.nFileIndexHigh, info.nFileIndexLow)},
      .size = Joined(info.nFileSizeHigh, info.nFileSizeLow),
      .time = InNanoseconds(info.ftLastWriteTime),
      .names = info.nNumberOfLinks,
      .isFile = !IsFolder(info.dwFileAttributes) && GetFileType(HandleOf(file)) == FILE_TYPE_DISK,
      .readOnly = (info.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0};
}

bool IsWritable(const std::string& path) { return OpenToWrite(path).IsOpen(); }

std::string FollowLinks(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  if (attributes == INVALID_FILE_ATTRIBUTES || !IsLink(attributes)) return path;
  const OpenFile target = OpenToLook(path);
  std::wstring name(32768, L'\0');
  const auto size = static_cast<DWORD>(name.size());
  const DWORD length = GetFinalPathNameByHandleW(HandleOf(target), name.data(), size, 0);
  return length > 0 && length < size ? NativePath({name.data(), length}) : path;
}

std::int64_t LastChangeOf(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  if (!GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data))
    return std::numeric_limits<std::int64_t>::max();
  return InNanoseconds(data.ftLastWriteTime) / 1'000'000'000;
}

std::string AbsolutePath(const std::string& path) {
  const std::wstring wide = SystemPath(path);
  std::wstring full(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
  if (full.empty()) return path;
  full.resize(
      GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return NativePath(full);
}

}  // namespace lumenote
