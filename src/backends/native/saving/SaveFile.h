// Saves new content over a file.
#pragma once
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace lumenote {

class NativeStateFolder;

/// All paths are native. Whether a file may be written to `path`, links followed: true if nothing
/// is there; false for anything but a regular file, and for one that its owner (even if another
/// user runs this) or this user may not write.
bool MayReplace(const std::string& path);

/// Replaces the content of the file at `path`, or of a link's target, in one rename. Metadata is
/// kept as far as the user's rights allow. Raises PathAccess where `MayReplace` returns false.
void ReplaceFile(const std::string& path, std::string_view bytes, Permissions newFile);

/// The same for files of the user's: no metadata is ever lost. If a rename would lose some, or the
/// folder refuses it, the file itself is written, with a backup in `backups` until that is done;
/// without `backups` that raises PathAccess.
void SaveFile(const std::string& path, std::string_view bytes, NativeStateFolder* backups);

}  // namespace lumenote
