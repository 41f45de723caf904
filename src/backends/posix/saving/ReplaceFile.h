// Saving: a file's new content in the place of the old.
#pragma once
#include <string>
#include <string_view>
#include <sys/types.h>

namespace lumenote {

class PosixStateFolder;

/// `path`, or where the symbolic links it names lead to, whether anything stands there or not. All
/// paths are native.
std::string FollowLinks(const std::string& path);

/// Whether a file may be put at `path`, links followed: true where nothing stands, false for what
/// is no regular file, or one that its owner (whoever runs) or this user may not write.
bool MayReplace(const std::string& path);

/// Replaces the content of the file at `path` (the one behind it for a symbolic link) in one
/// rename. What the old file had beside its content is kept as far as the user's rights let it; a
/// new file gets `newMode` less the process's mask. Raises PathAccess where `MayReplace` says no.
void ReplaceFile(const std::string& path, std::string_view bytes, mode_t newMode);

/// The same for what is the user's: nothing that the old file had is lost. Where one rename would
/// lose some of it, or the folder refuses one, the file is written in place, see `WriteInPlace`;
/// without `backups` that is PathAccess.
void SaveFile(const std::string& path, std::string_view bytes, mode_t newMode,
              PosixStateFolder* backups);

}  // namespace lumenote
