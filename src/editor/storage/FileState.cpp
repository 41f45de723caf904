#include "editor/storage/FileState.h"

#include <chrono>
#include <functional>
#include <string>

#include "base/RuntimeError.h"

namespace lumenote {

FileState StateOf(std::u16string_view path, std::string_view bytes, FileTime time) {
  return {std::u16string(path), bytes.size(), std::hash<std::string_view>{}(bytes), time};
}

// Some file systems record times in steps of two seconds.
FileTime SettledTime(const Files& files, std::u16string_view path) {
  using namespace std::chrono;
  constexpr FileTime kStep = nanoseconds(2s).count();
  const FileTime now = nanoseconds(system_clock::now().time_since_epoch()).count();
  FileTime time = 0;
  IgnoringErrors([&] { time = files.ModificationTime(path); });
  return time < now - kStep ? time : 0;
}

bool IsUntouched(const Files& files, const FileState& state, std::u16string_view path) {
  return state.time != 0 && state.path == path && files.ModificationTime(path) == state.time &&
         files.Size(path) == state.size;
}

bool IsSameContent(const FileState& one, const FileState& other) {
  return one.path == other.path && one.size == other.size && one.hash == other.hash;
}

}  // namespace lumenote
