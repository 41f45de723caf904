// The drives of a Windows system are its own; paths of network folders count as well.
#include "backends/native/folders/DrivePaths.h"

#include "backends/native/files/Disk.h"
#include "base/RuntimeError.h"
#include "base/Strings.h"

namespace lumenote {

const std::u16string_view DrivePaths::kOtherDrive = {};

DrivePaths DrivePaths::OfUser() { return DrivePaths({}, true); }

std::pair<std::string, std::u16string_view> DrivePaths::SplitRoot(
    std::u16string_view drivePath) const {
  if (HasDriveLetter(drivePath)) {
    const std::u16string_view below = drivePath.substr(2);
    if (IsDriveC(drivePath[0])) return {*driveC_, below};
    if (isOfUser_) return {ToUtf8(drivePath.substr(0, 2)), below};
  }
  if (!isOfUser_ || !drivePath.starts_with(u"\\\\")) throw RuntimeError(ErrorNumber::PathNotFound);
  return {"/", drivePath.substr(2)};
}

std::string DrivePaths::Cleaned(std::string_view native) {
  std::string path = AbsolutePath(std::string(native));
  if (path.ends_with('/')) path.pop_back();
  return path;
}

}  // namespace lumenote
