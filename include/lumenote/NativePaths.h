// Converts between native paths and the drive-letter paths that the control uses everywhere.
#pragma once
#include <string>
#include <string_view>

namespace lumenote {

/// The drive-letter path of `native` (UTF-8, may be relative). On POSIX systems Z: is the root
/// folder and C: a folder of the user's own: `$LUMENOTE_DRIVE_C`, else lumenote/drive_c in the
/// user's data folder, created when missing. Raises PathNotFound (76) when no drive-letter path can
/// express it: not UTF-8, or a backslash in a name.
std::u16string ToDrivePath(std::string_view native);
/// The native path (UTF-8) of a drive-letter path. Raises PathNotFound (76) for an unknown drive.
std::string ToNativePath(std::u16string_view drivePath);

}  // namespace lumenote
