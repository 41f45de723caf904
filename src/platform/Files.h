// Files of the real system, addressed by drive-letter paths.
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lumenote {

/// Nanoseconds since the epoch; full precision of the file system.
using FileTime = std::int64_t;

/// Who may read a new file: those whom the user's settings say, or this user alone.
enum class Readers { AsUsual, UserOnly };

/// Every path is a drive-letter path ("C:\notes\a.rtf"), case kept. Failures are run-time errors:
/// FileNotFound, DiskFull, PermissionDenied, PathAccess, PathNotFound (a missing folder or drive, a
/// text that is no path). A folder is not a file.
class Files {
 public:
  virtual ~Files() = default;

  /// Whether a file (not a folder) stands there; never fails.
  virtual bool Exists(std::u16string_view path) const = 0;
  /// The read-only attribute: the owner's missing write bit on POSIX.
  virtual bool IsReadOnly(std::u16string_view path) const = 0;
  virtual FileTime ModificationTime(std::u16string_view path) const = 0;
  virtual std::uint64_t Size(std::u16string_view path) const = 0;  // bytes
  virtual std::string ReadAll(std::u16string_view path) const = 0;
  /// Whether both paths lead to one file, links of either kind followed; never fails.
  virtual bool SameFile(std::u16string_view one, std::u16string_view other) const = 0;

  /// A turn at the files of the folder, lest two programs save one note at the same moment: it
  /// lasts as long as the object. Waits a few seconds for another's turn, then goes on without.
  /// Never fails.
  virtual std::shared_ptr<void> TakeTurn(std::u16string_view path) const = 0;

  /// Replaces the file's content at once or not at all: writes beside it, flushes, renames. Where
  /// that would lose what the file has beside its content (owner, mode, access list, attributes,
  /// other names), or its folder is closed, the file itself is written, with a backup until that is
  /// done. Refuses a read-only file (PathAccess).
  virtual void Write(std::u16string_view path, std::string_view bytes) = 0;
  /// Makes a new file, whole or not at all. PermissionDenied where something of that name stands.
  virtual void WriteNew(std::u16string_view path, std::string_view bytes, Readers readers) = 0;
  /// Adds whole lines behind what the file holds, in one write and all of them or none, so that
  /// several programs can add to it at the same time; a last line without its end gets it first. A
  /// missing file is made. Refuses a read-only file (PathAccess).
  virtual void AppendLines(std::u16string_view path, std::string_view lines) = 0;
  /// A read-only file is deleted only with `force` (else PermissionDenied).
  virtual void Delete(std::u16string_view path, bool force) = 0;
  /// Copies content and mode; an existing target is overwritten unless read-only
  /// (PermissionDenied).
  virtual void Copy(std::u16string_view from, std::u16string_view to) = 0;
  /// One rename where the file system allows; an existing target is an error (PermissionDenied).
  virtual void Move(std::u16string_view from, std::u16string_view to) = 0;
};

}  // namespace lumenote
