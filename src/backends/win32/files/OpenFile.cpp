// Closes, locks and identifies handles; writes all.
#include "backends/native/files/OpenFile.h"

#include <algorithm>

#include "backends/win32/files/Handles.h"

namespace lumenote {
namespace {

/// Locks here hold readers and writers off, so they cover a byte that no note reaches.
OVERLAPPED FarPlace() {
  OVERLAPPED place = {};
  place.OffsetHigh = 0x40000000;
  return place;
}

}  // namespace

void OpenFile::Close() {
  if (IsOpen()) CloseHandle(HandleOf(*this));
  number_ = kNone;
}

int WriteAll(const OpenFile& file, std::string_view bytes) {
  constexpr std::size_t kLargestStep = 1 << 30;
  while (!bytes.empty()) {
    const auto step = static_cast<DWORD>(std::min(bytes.size(), kLargestStep));
    DWORD written = 0;
    if (!WriteFile(HandleOf(file), bytes.data(), step, &written, nullptr)) return LastError();
    bytes.remove_prefix(written);
  }
  return 0;
}

int SeekToStart(const OpenFile& file) {
  return ErrorUnless(SetFilePointerEx(HandleOf(file), {}, nullptr, FILE_BEGIN));
}

int Resize(const OpenFile& file, std::uint64_t size) {
  FILE_END_OF_FILE_INFO end = {};
  end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
  return ErrorUnless(
      SetFileInformationByHandle(HandleOf(file), FileEndOfFileInfo, &end, sizeof end));
}

// An allocation below the present length would cut the file.
int Reserve(const OpenFile& file, std::uint64_t size) {
  const std::optional<std::uint64_t> present = SizeOf(file);
  if (!present) return LastError();
  if (size <= *present) return 0;
  FILE_ALLOCATION_INFO space = {};
  space.AllocationSize.QuadPart = static_cast<LONGLONG>(size);
  const int error = ErrorUnless(
      SetFileInformationByHandle(HandleOf(file), FileAllocationInfo, &space, sizeof space));
  return error == ERROR_DISK_FULL ? error : 0;
}

int Flush(const OpenFile& file) { return ErrorUnless(FlushFileBuffers(HandleOf(file))); }

std::optional<std::uint64_t> SizeOf(const OpenFile& file) {
  LARGE_INTEGER size = {};
  if (!GetFileSizeEx(HandleOf(file), &size)) return std::nullopt;
  return static_cast<std::uint64_t>(size.QuadPart);
}

std::optional<char> LastByteOf(const OpenFile& file) {
  const std::uint64_t size = SizeOf(file).value_or(0);
  if (size == 0) return std::nullopt;
  OVERLAPPED place = {};
  place.Offset = static_cast<DWORD>(size - 1);
  place.OffsetHigh = static_cast<DWORD>((size - 1) >> 32);
  char last = 0;
  DWORD count = 0;
  if (!ReadFile(HandleOf(file), &last, 1, &count, &place) || count != 1) return std::nullopt;
  return last;
}

LockResult TryLock(const OpenFile& file, Lock lock) {
  const DWORD kind = lock == Lock::Exclusive ? LOCKFILE_EXCLUSIVE_LOCK : 0;
  OVERLAPPED place = FarPlace();
  if (LockFileEx(HandleOf(file), kind | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place))
    return LockResult::Locked;
  const int error = LastError();
  const bool taken = error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING;
  return taken ? LockResult::Taken : LockResult::Impossible;
}

bool IsNameOf(const std::string& path, const OpenFile& file) {
  const OpenFile named = OpenToLook(path, Links::AreFiles);
  return named.IsOpen() && SameFile(named, file);
}

bool IsOwn(const OpenFile& file) {
  FILE_STANDARD_INFO info = {};
  return GetFileInformationByHandleEx(HandleOf(file), FileStandardInfo, &info, sizeof info) &&
         !info.Directory && !info.DeletePending && info.NumberOfLinks > 0;
}

}  // namespace lumenote
