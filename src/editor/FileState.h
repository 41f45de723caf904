// The note's file as this editor has last read or written it.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace lumenote {

struct FileState {
  std::u16string path;
  std::size_t size = 0;
  std::size_t hash = 0;
  FileTime time = 0;  // of its modification; 0 where a change might not show in it
};

/// `time` is 0, or a `SettledTime` from before the bytes were read.
FileState StateOf(std::u16string_view path, std::string_view bytes, FileTime time = 0);
/// The file's modification time where any change from now on shows in it; else 0. Never fails.
FileTime SettledTime(const Files& files, std::u16string_view path);
/// Whether nobody has touched the file at `path` since `state` was taken of it; false where that
/// takes reading it. Raises what looking at the file raises.
bool IsUntouched(const Files& files, const FileState& state, std::u16string_view path);
/// Whether both are the same bytes at the same path.
bool IsSameContent(const FileState& one, const FileState& other);

}  // namespace lumenote
