#include "backends/native/files/FileActs.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumenote {

int SetReadOnly(const std::string& path, bool on) {
  struct stat info = {};
  if (stat(path.c_str(), &info) != 0) return errno;
  const mode_t mode = on ? info.st_mode & ~S_IWUSR : info.st_mode | S_IWUSR;
  return chmod(path.c_str(), mode & 07777) == 0 ? 0 : errno;
}

int ShiftTime(const std::string& path, std::int64_t seconds) {
  struct stat info = {};
  if (stat(path.c_str(), &info) != 0) return errno;
  struct timespec times[] = {{0, UTIME_OMIT}, info.st_mtim};
  times[1].tv_sec += seconds;
  return utimensat(AT_FDCWD, path.c_str(), times, 0) == 0 ? 0 : errno;
}

int MakeHardLink(const std::string& name, const std::string& path) {
  return link(path.c_str(), name.c_str()) == 0 ? 0 : errno;
}

int MakeSymbolicLink(const std::string& name, const std::string& path) {
  return symlink(path.c_str(), name.c_str()) == 0 ? 0 : errno;
}

}  // namespace lumenote
