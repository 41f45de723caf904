// The paths of the system and the drive-letter paths that the control speaks everywhere.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

// On POSIX systems Z: is the root folder and C: a folder of the user's own: `$LUMENOTE_DRIVE_C`,
// else lumenote/drive_c in the user's data folder, which is made when it is missing.

/// The path that `CoBxRtf` takes for a native one, UTF-8, which may be relative. Raises
/// PathNotFound (76) for one that no drive-letter path can name: not UTF-8, or with a backslash in
/// a name.
std::u16string ToDrivePath(std::string_view native);
/// The native path, UTF-8, of a drive-letter path. Raises PathNotFound (76) where there is no such
/// drive.
std::string ToNativePath(std::u16string_view drivePath);

}  // namespace lumenote
