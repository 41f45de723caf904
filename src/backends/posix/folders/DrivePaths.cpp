// The drives of a POSIX system: a folder, and the root folder.
#include "backends/native/folders/DrivePaths.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "backends/posix/folders/UserFolders.h"
#include "base/Characters.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailNotFound() { throw RuntimeError(ErrorNumber::PathNotFound); }

}  // namespace

const std::u16string_view DrivePaths::kOtherDrive = u"Z:";

DrivePaths DrivePaths::OfUser() {
  const char* chosen = std::getenv("LUMENOTE_DRIVE_C");
  std::string driveC = chosen ? chosen : "";
  if (driveC.empty() && !DataFolder().empty()) driveC = DataFolder() + "/lumenote/drive_c";
  std::error_code ignored;
  if (!driveC.empty()) fs::create_directories(driveC, ignored);
  return DrivePaths(driveC, true);
}

std::pair<std::string, std::u16string_view> DrivePaths::SplitRoot(
    std::u16string_view drivePath) const {
  if (!HasDriveLetter(drivePath)) FailNotFound();
  const std::u16string_view below = drivePath.substr(2);
  if (IsDriveC(drivePath[0])) return {*driveC_, below};
  if (ToUpper(drivePath[0]) != u'Z' || !isOfUser_) FailNotFound();
  return {std::string(), below};
}

/// Symbolic links are resolved only for a "..".
std::string DrivePaths::Cleaned(std::string_view native) {
  std::error_code error;
  fs::path path = fs::absolute(native, error);
  const bool climbs = std::find(path.begin(), path.end(), "..") != path.end();
  if (climbs) path = fs::weakly_canonical(path, error);
  if (error) FailNotFound();
  std::string text = path.lexically_normal().string();
  if (text.ends_with('/')) text.pop_back();
  return text;
}

}  // namespace lumenote
