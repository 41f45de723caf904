#include "lumenote/NativePaths.h"

#include "backends/native/folders/DrivePaths.h"

namespace lumenote {

std::u16string ToDrivePath(std::string_view native) {
  return DrivePaths::OfUser().ToDrivePath(native);
}

std::string ToNativePath(std::u16string_view drivePath) {
  return DrivePaths::OfUser().ToNative(drivePath);
}

}  // namespace lumenote
