// What the platform's portable parts do on a disk. Paths are native; on Windows, in UTF-8.
#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "backends/native/files/OpenFile.h"
#include "platform/Files.h"

namespace lumenote {

/// The error number of the call that failed last on this thread.
int LastError();

/// Reads a regular file, following symbolic links. Raises as `AccessError` says, and PathAccess for
/// anything but a regular file.
std::string ReadWholeFile(const std::string& path);
/// Each opens a file for reading and writing, private to the user if it is new, never through
/// a link; the result is not open on failure. The first refuses an existing file, the second
/// empties it, the third refuses a missing one and opens a read-only one for reading alone.
OpenFile CreateNew(const std::string& path, Permissions permissions = Permissions::UserOnly);
OpenFile Recreate(const std::string& path);
OpenFile OpenExisting(const std::string& path);
/// These follow links. The first two open an existing file; the last a file, created with the
/// user's default rights if it is missing, for reading and appending.
OpenFile OpenToRead(const std::string& path);
OpenFile OpenToWrite(const std::string& path);
OpenFile OpenToAppend(const std::string& path);
/// Whether an error says that a name is taken; that there is no such file or folder.
bool IsTaken(int error);
bool IsMissing(int error);

/// Whether an error says that the target of a rename is on another file system.
bool IsElsewhere(int error);

/// Flushes a file's content, or a folder's entries, to the disk. Like the next two, returns 0 or
/// the system's error number.
int SyncToDisk(const std::string& path);
/// Replaces an existing `to`, links not followed.
int RenameOver(const std::string& from, const std::string& to);
int RenameWithoutReplacing(const std::string& from, const std::string& to);

/// Creates a folder and its missing parents. Returns 0 or the system's error number.
int MakeFolders(const std::string& path);
/// Creates a folder, accessible to this user only, and its missing parents. Raises PathAccess.
void MakePrivateFolder(const std::string& path);
/// Creates such a folder in `parent` under a new name: `prefix` and six letters or digits. Returns
/// its path, or nothing on failure.
std::string MakeUniqueFolder(const std::string& parent, const std::string& prefix);
/// Whether this is a folder, not a link to one; whether it is the user's own as well.
bool IsRealFolder(const std::string& path);
bool IsOwnFolder(const std::string& path);
/// The names in a folder; nothing unless all of it can be read.
std::optional<std::vector<std::string>> AllNamesIn(const std::string& folder);
/// The same; empty if they cannot be read.
inline std::vector<std::string> NamesIn(const std::string& folder) {
  return AllNamesIn(folder).value_or(std::vector<std::string>());
}

/// Return 0 or the system's error number; read-only files go as well. The last one removes a file,
/// a link, or a folder with all that is in it.
int RemoveFile(const std::string& path);
int RemoveEmptyFolder(const std::string& path);
int RemoveTree(const std::string& path);

/// Names a file whatever its path; no two files have the same.
struct FileId {
  std::uint64_t volume = 0;
  std::uint64_t number = 0;
  bool operator==(const FileId&) const = default;
  bool operator<(const FileId& other) const {
    return volume != other.volume ? volume < other.volume : number < other.number;
  }
};

struct FileStatus {
  FileId id;
  std::uint64_t size = 0;  // bytes
  FileTime time = 0;       // of the last change
  std::uint64_t names = 0;
  bool isFile = false;  // neither a folder nor a device
  bool readOnly = false;
  bool operator==(const FileStatus&) const = default;
};
/// What is at a path, links followed; nothing, with `LastError`, if that cannot be told.
std::optional<FileStatus> StatusOf(const std::string& path);
/// The last change of the file or folder itself, seconds since the epoch; far in the future if that
/// cannot be told.
std::int64_t LastChangeOf(const std::string& path);

/// Whether this user may write the existing file, links followed.
bool IsWritable(const std::string& path);
/// The path that symbolic links at `path` lead to, whether or not it exists.
std::string FollowLinks(const std::string& path);
/// Keeps other programs out of the folder of `path`; see `Files::LockFolder`.
std::shared_ptr<void> LockFolderOf(const std::string& path);

/// The path before the last separator; "." if there is none.
std::string ParentOf(const std::string& path);
/// Absolute, so that errors can tell whether the parent folder is missing.
std::string AbsolutePath(const std::string& path);

}  // namespace lumenote
