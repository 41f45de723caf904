#include "backends/native/files/Disk.h"

namespace lumenote {

std::string ParentOf(const std::string& path) {
  const std::size_t separator = path.rfind('/');
  if (separator == path.npos) return ".";
  return path.substr(0, separator == 0 ? 1 : separator);
}

}  // namespace lumenote
