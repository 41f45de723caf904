// Saves new content over a file.
#pragma once
#include <string>
#include <string_view>
#include <sys/types.h>

namespace lumenote {

class PosixStateFolder;

/// The path that symbolic links at `path` lead to, whether or not it exists. All paths are native.
std::string FollowLinks(const std::string& path);

/// Whether a file may be written to `path`, links followed: true if nothing is there; false for
/// anything but a regular file, and for one that its owner (even if another user runs this) or this
/// user may not write.
bool MayReplace(const std::string& path);

/// Replaces the content of the file at `path`, or of a link's target, in one rename. Metadata is
/// kept as far as the user's rights allow; a new file gets `newMode` less the umask. Raises
/// PathAccess where `MayReplace` returns false.
void ReplaceFile(const std::string& path, std::string_view bytes, mode_t newMode);

/// The same for files of the user's: no metadata is ever lost. If a rename would lose some, or the
/// folder refuses it, the file is written in place (`WriteInPlace`); without `backups` that raises
/// PathAccess.
void SaveFile(const std::string& path, std::string_view bytes, mode_t newMode,
              PosixStateFolder* backups);

}  // namespace lumenote
