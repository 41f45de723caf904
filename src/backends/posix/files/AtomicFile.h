// Replaces a file's content atomically.
#pragma once
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>

#include "backends/posix/files/Descriptor.h"
#include "backends/posix/files/FileAttributes.h"

namespace lumenote {

/// A new file beside its target, under a name of its own until it is committed. An uncommitted file
/// is removed at the end or, if the program dies, by the next save of the same target. All paths
/// are native. Failures are run-time errors.
class AtomicFile {
 public:
  /// `mode` applies to the new file, less the umask. A folder that refuses new files raises
  /// PathAccess only on `Write`.
  AtomicFile(std::string target, mode_t mode);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  bool Refused() const { return !file_.IsOpen(); }

  /// See `CopyAttributes`.
  bool TakeAttributes(const Descriptor& old) { return CopyAttributes(old, file_); }
  /// Sets the new file's modification time to that of `old`; call after the last `Write`.
  void TakeModificationTime(const struct stat& old);
  void Write(std::string_view bytes);
  /// Flushes the content to the disk and renames the file to its target.
  void Commit();
  /// The same, but returns false if the folder refuses the rename.
  bool TryCommit();
  /// The same, but an existing target raises PermissionDenied.
  void CommitAsNew();

 private:
  void Flush();
  void Committed();

  std::string target_;
  std::string name_;  // empty once committed
  Descriptor file_;
};

/// Returns 0 or an errno value, EEXIST if `to` exists.
int RenameWithoutReplacing(const std::string& from, const std::string& to);

}  // namespace lumenote
