// The user's folders as drive paths.
#include "backends/posix/PosixFolders.h"

#include "backends/posix/UserFolders.h"
#include "base/RuntimeError.h"

namespace lumenote {
namespace {

std::u16string DrivePathOrNone(const DrivePaths& drives, const std::string& native) {
  std::u16string path;
  IgnoringErrors([&] { path = drives.ToDrivePath(native); });
  return path;
}

}  // namespace

std::u16string PosixFolders::Documents() const {
  return DrivePathOrNone(drives_, DocumentsFolder());
}

std::u16string PosixFolders::Temp() const {
  const std::u16string path = DrivePathOrNone(drives_, temp_.Path());
  return path.empty() ? path : path + u"\\";
}

}  // namespace lumenote
