// Replacing a file's content at once or not at all.
#pragma once
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>

#include "backends/posix/Descriptor.h"

namespace lumenote {

/// A new file that stands beside its target under a name of its own until it is committed; one that
/// never is, is removed. All paths are native. Failures are run-time errors.
class AtomicFile {
 public:
  /// `mode` is the new file's, less the process's mask.
  AtomicFile(std::string target, mode_t mode);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  /// Gives the new file the mode, the owner and the group of `old`, as far as the file system and
  /// the user's rights let it.
  void TakeAttributes(const struct stat& old);
  /// The same for the modification time; to be called after the last `Write`.
  void TakeModificationTime(const struct stat& old);
  void Write(std::string_view bytes);
  /// Brings the content to the disk and renames the file onto its target.
  void Commit();
  /// The same, but an existing target is an error (PermissionDenied).
  void CommitAsNew();

 private:
  void Flush();
  void Committed();

  std::string target_;
  std::string name_;  // empty once committed
  Descriptor file_;
};

/// `path`, or where the symbolic links it names lead to, whether anything stands there or not.
std::string FollowLinks(const std::string& path);

/// Whether a file may be put at `path`, links followed: true where nothing stands, false for what
/// is no regular file, or one that its owner (whoever runs) or this user may not write.
bool MayReplace(const std::string& path);

/// Replaces the content of the file at `path` (the one behind it for a symbolic link), whose mode
/// and owner are kept; a new file gets `newMode` less the process's mask. Raises PathAccess where
/// `MayReplace` says no.
void ReplaceFile(const std::string& path, std::string_view bytes, mode_t newMode);

/// Renames; returns 0 or an errno value, EEXIST when `to` exists.
int RenameWithoutReplacing(const std::string& from, const std::string& to);

}  // namespace lumenote
