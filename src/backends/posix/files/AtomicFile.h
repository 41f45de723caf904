// Replacing a file's content at once or not at all.
#pragma once
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>

#include "backends/posix/files/Descriptor.h"
#include "backends/posix/files/FileAttributes.h"

namespace lumenote {

/// A new file that stands beside its target under a name of its own until it is committed; one that
/// never is, is removed, at the next save of the target if the program dies. All paths are native.
/// Failures are run-time errors.
class AtomicFile {
 public:
  /// `mode` is the new file's, less the process's mask. A folder that refuses new files raises
  /// PathAccess only when the file is written.
  AtomicFile(std::string target, mode_t mode);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  bool Refused() const { return !file_.IsOpen(); }

  /// See `CopyAttributes`.
  bool TakeAttributes(const Descriptor& old) { return CopyAttributes(old, file_); }
  /// Gives the new file the modification time of `old`; to be called after the last `Write`.
  void TakeModificationTime(const struct stat& old);
  void Write(std::string_view bytes);
  /// Brings the content to the disk and renames the file onto its target.
  void Commit();
  /// The same, but returns false when the folder refuses the rename.
  bool TryCommit();
  /// The same, but an existing target is an error (PermissionDenied).
  void CommitAsNew();

 private:
  void Flush();
  void Committed();

  std::string target_;
  std::string name_;  // empty once committed
  Descriptor file_;
};

/// Renames; returns 0 or an errno value, EEXIST when `to` exists.
int RenameWithoutReplacing(const std::string& from, const std::string& to);

}  // namespace lumenote
