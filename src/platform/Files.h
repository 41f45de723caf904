// Files of the real system, named by drive-letter paths.
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lumenote {

/// Nanoseconds since the epoch, at the file system's full precision.
using FileTime = std::int64_t;

/// Permissions of a new file: the user's defaults, or private to the user.
enum class Permissions { Default, UserOnly };

/// Paths are case-preserving drive-letter paths ("C:\notes\a.rtf"). Failures are run-time errors:
/// FileNotFound, DiskFull, PermissionDenied, PathAccess, PathNotFound (missing folder or drive,
/// malformed path). A folder is not a file.
class Files {
 public:
  virtual ~Files() = default;

  /// Whether `path` is a file, not a folder; never fails.
  virtual bool Exists(std::u16string_view path) const = 0;
  /// The read-only attribute; on POSIX, the owner's write bit is missing.
  virtual bool IsReadOnly(std::u16string_view path) const = 0;
  virtual FileTime ModificationTime(std::u16string_view path) const = 0;
  virtual std::uint64_t Size(std::u16string_view path) const = 0;  // bytes
  virtual std::string ReadAll(std::u16string_view path) const = 0;
  /// Whether both paths name one file, following hard and symbolic links; never fails.
  virtual bool SameFile(std::u16string_view one, std::u16string_view other) const = 0;

  /// Locks the folder of `path` between programs until the returned object is destroyed, so that no
  /// two programs save a note at the same time. Gives up after a few seconds and goes on without
  /// the lock. Never fails.
  virtual std::shared_ptr<void> LockFolder(std::u16string_view path) const = 0;

  /// Replaces the file's content atomically: writes a temporary file beside it, flushes, renames.
  /// Where a rename would lose metadata (owner, mode, access list, attributes, hard links), or the
  /// folder is not writable, writes the file in place and keeps a backup until that is done.
  /// Refuses a read-only file (PathAccess).
  virtual void Write(std::u16string_view path, std::string_view bytes) = 0;
  /// Creates a file, whole or not at all. Raises PermissionDenied if the name is taken.
  virtual void WriteNew(std::u16string_view path, std::string_view bytes,
                        Permissions permissions) = 0;
  /// Appends whole lines in one write, all or none, so that several programs can append at the same
  /// time; first ends an unfinished last line. Creates a missing file. Refuses a read-only file
  /// (PathAccess).
  virtual void AppendLines(std::u16string_view path, std::string_view lines) = 0;
  /// Without `force` a read-only file raises PermissionDenied.
  virtual void Delete(std::u16string_view path, bool force) = 0;
  /// Copies content and mode and overwrites the target, unless that is read-only
  /// (PermissionDenied).
  virtual void Copy(std::u16string_view from, std::u16string_view to) = 0;
  /// A single rename where the file system allows. An existing target raises PermissionDenied.
  virtual void Move(std::u16string_view from, std::u16string_view to) = 0;
};

}  // namespace lumenote
