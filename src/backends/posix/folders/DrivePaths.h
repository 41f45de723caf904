// Drive-letter paths and the native paths they stand for.
#pragma once
#include <optional>
#include <string>
#include <string_view>

namespace lumenote {

/// Drive C: is one folder; drive Z:, unless this is a sandbox, is the root folder. Names match
/// exactly, in UTF-8 on the disk; both kinds of slash separate, blank and "." components vanish,
/// and
/// ".." is taken by the text alone and stops at the drive's root. Symbolic links are followed as
/// anywhere.
class DrivePaths {
 public:
  /// The user's own: C: is `$LUMENOTE_DRIVE_C`, else lumenote/drive_c in the user's data folder,
  /// made when it is missing. Without a home folder there is no drive C:.
  static DrivePaths OfUser();
  /// A sandbox: `driveC`, a native path, is drive C:, and there is no other drive. Raises
  /// PathNotFound when a relative one has nothing to start from.
  explicit DrivePaths(std::string_view driveC);

  /// Raises PathNotFound for a text that is no path of a drive that there is. A closing separator
  /// is kept.
  std::string ToNative(std::u16string_view drivePath) const;
  /// A path that the control takes for a native one, which may be relative. Raises PathNotFound for
  /// one that no drive path can name: outside the drives, not UTF-8, or with a backslash in a name.
  std::u16string ToDrivePath(std::string_view native) const;

 private:
  DrivePaths(std::string_view driveC, bool hasRootDrive);

  const std::string& RootOf(char16_t letter) const;

  std::optional<std::string> driveC_;  // absolute, no closing slash: the root folder is empty
  bool hasRootDrive_;
};

}  // namespace lumenote
