// Maps drive-letter paths to native paths and back.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// Drive C: is one folder; drive Z: is the root folder, except in a sandbox. Names match exactly
/// and are UTF-8 on disk. Both kinds of slash separate; empty and "." components are dropped; ".."
/// is resolved textually and stops at the drive's root. Symbolic links are followed as usual.
class DrivePaths {
 public:
  /// The user's drives: C: is `$LUMENOTE_DRIVE_C`, else lumenote/drive_c in the user's data folder,
  /// created if missing. Without a home folder there is no drive C:.
  static DrivePaths OfUser();
  /// A sandbox: drive C: is the native path `driveC`, and there is no other drive. Raises
  /// PathNotFound if a relative path cannot be made absolute.
  explicit DrivePaths(std::string_view driveC);

  /// Raises PathNotFound for a text that is not a path on an existing drive. A trailing separator
  /// is kept.
  std::string ToNative(std::u16string_view drivePath) const;
  /// The drive-letter path of a native path, which may be relative. Raises PathNotFound if there is
  /// none: outside the drives, not UTF-8, or with a backslash in a name.
  std::u16string ToDrivePath(std::string_view native) const;

 private:
  DrivePaths(std::string_view driveC, bool hasRootDrive);

  const std::string& RootOf(char16_t letter) const;

  std::optional<std::string> driveC_;  // absolute, no trailing slash: the root folder is empty
  bool hasRootDrive_;
};

}  // namespace lumenote
