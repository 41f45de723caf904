// The note's file as this editor last read or wrote it.
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

/// `time` is 0, or a `SettledTime` taken before the bytes were read.
FileState StateOf(std::u16string_view path, std::string_view bytes, FileTime time = 0);
/// The file's modification time if any later change must show in it; else 0. Never fails.
FileTime SettledTime(const Files& files, std::u16string_view path);
/// Whether the file at `path` is certainly unchanged since `state`; false if that would require
/// reading it. Raises what inspecting the file raises.
bool IsUntouched(const Files& files, const FileState& state, std::u16string_view path);
/// Whether both have the same bytes at the same path.
bool IsSameContent(const FileState& one, const FileState& other);

}  // namespace lumenote
