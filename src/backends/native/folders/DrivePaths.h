// Maps drive-letter paths to native paths and back.
#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace lumenote {

/// A sandbox has one drive, C:, which is a folder. The user's drives are, on POSIX, drive C:, a
/// folder too, and Z:, the root folder; on Windows those of the system, and network folders. Names
/// are UTF-8 in native paths, which have slashes everywhere. Both kinds of slash separate; empty
/// and "." components are dropped; ".." is resolved textually and stops at the drive's root.
/// Symbolic links are followed as usual.
class DrivePaths {
 public:
  /// The user's drives. On POSIX C: is `$LUMENOTE_DRIVE_C`, else lumenote/drive_c in the user's
  /// data folder, created if missing; without a home folder there is no drive C:.
  static DrivePaths OfUser();
  /// A sandbox: drive C: is the native path `driveC`, and there is no other drive. Raises
  /// PathNotFound if a relative path cannot be made absolute.
  explicit DrivePaths(std::string_view driveC) : DrivePaths(driveC, false) {}

  /// Raises PathNotFound for a text that is not a path on an existing drive. A trailing separator
  /// is kept.
  std::string ToNative(std::u16string_view drivePath) const;
  /// The drive-letter path of a native path, which may be relative. Raises PathNotFound if there is
  /// none: outside the drives, not UTF-8, or with a backslash in a name.
  std::u16string ToDrivePath(std::string_view native) const;

 private:
  DrivePaths(std::string_view driveC, bool isOfUser);

  bool IsDriveC(char16_t letter) const;
  /// Returns false for text that is not "X:", alone or before a separator.
  static bool HasDriveLetter(std::u16string_view path);

  // What each system does its own way. The native root of a path, without a separator at its end,
  // and what lies below; raises PathNotFound.
  std::pair<std::string, std::u16string_view> SplitRoot(std::u16string_view drivePath) const;
  /// Absolute, with slashes, without "." and a trailing one, so that the root folder is empty.
  /// Raises PathNotFound on failure.
  static std::string Cleaned(std::string_view native);
  /// The drive of a cleaned path outside drive C:; empty where such paths name their drives.
  static const std::u16string_view kOtherDrive;

  std::optional<std::string> driveC_;  // cleaned
  bool isOfUser_;
};

}  // namespace lumenote
