// Replaces a file's content atomically.
#pragma once
#include <string>
#include <string_view>

#include "backends/native/files/FileAttributes.h"
#include "backends/native/files/OpenFile.h"
#include "platform/Files.h"

namespace lumenote {

/// A new file beside its target, under a name of its own until it is committed. An uncommitted file
/// is removed at the end or, if the program dies, by the next save of the same target. All paths
/// are native. Failures are run-time errors.
class AtomicFile {
 public:
  /// A folder that refuses new files raises PathAccess only on `Write`.
  AtomicFile(std::string target, Permissions permissions);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  bool Refused() const { return !file_.IsOpen(); }

  /// See `CopyAttributes`, `CopyMode` and `CopyTime`; the time last, after the last `Write`.
  bool TakeAttributes(const OpenFile& old) { return CopyAttributes(old, file_); }
  void TakeMode(const OpenFile& old) { CopyMode(old, file_); }
  void TakeTime(const OpenFile& old) { CopyTime(old, file_); }
  void Write(std::string_view bytes);
  /// Flushes the content to the disk and renames the file to its target.
  void Commit();
  /// The same, but returns false if the folder refuses the rename.
  bool TryCommit();
  /// The same, but an existing target raises PermissionDenied.
  void CommitAsNew();

 private:
  void FlushAll();
  void Committed();

  std::string target_;
  std::string name_;  // empty once committed
  OpenFile file_;
};

/// Creates a file, or a link's missing target, whole or not at all. Raises PermissionDenied if the
/// name is taken.
void WriteNewFile(const std::string& path, std::string_view bytes, Permissions permissions);

}  // namespace lumenote
