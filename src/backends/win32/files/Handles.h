// Handles of open files, and what the system says about them.
#pragma once
#include <cstdint>
#include <string>

#include "backends/native/files/Disk.h"
#include "backends/win32/system/System.h"

namespace lumenote {

inline HANDLE HandleOf(const OpenFile& file) { return reinterpret_cast<HANDLE>(file.Number()); }
inline OpenFile Owned(HANDLE handle) { return OpenFile(reinterpret_cast<std::intptr_t>(handle)); }

/// Whether a symbolic link is opened itself, or what it leads to.
enum class Links { AreFollowed, AreFiles };

/// Opens a file, shared with every other program. `creation` as the system's call has it.
OpenFile Open(const std::string& path, DWORD access, DWORD creation,
              Links links = Links::AreFollowed);
/// Opens a file or folder for asking about it.
OpenFile OpenToLook(const std::string& path, Links links = Links::AreFollowed);

/// All zero if the system does not tell.
BY_HANDLE_FILE_INFORMATION InfoOf(const OpenFile& file);
bool SameFile(const OpenFile& one, const OpenFile& other);

/// Nanoseconds since 1970.
std::int64_t InNanoseconds(const FILETIME& time);

/// Attributes of a file or folder; INVALID_FILE_ATTRIBUTES if there is none.
DWORD AttributesOf(const std::string& path);

/// Repeats a call for half a second while another program (a virus scanner, an indexer) has the
/// file open for a moment. `call` returns 0 or an error number; so does this.
template <class Call>
int Patiently(Call call) {
  int error = call();
  for (int i = 0; i < 25 && (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION);
       ++i) {
    Sleep(20);
    error = call();
  }
  return error;
}

/// The outcome of a call that returns whether it succeeded.
inline int ErrorUnless(BOOL done) { return done ? 0 : LastError(); }

}  // namespace lumenote
