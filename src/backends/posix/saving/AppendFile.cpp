// A single write at the end of the file, under a lock.
#include "backends/posix/saving/AppendFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "backends/posix/files/Descriptor.h"
#include "backends/posix/files/Errors.h"
#include "backends/posix/files/FileLock.h"
#include "backends/posix/saving/ReplaceFile.h"

namespace lumenote {
namespace {

/// What the last line lacks of its CR LF.
std::string_view MissingEnd(const Descriptor& file, off_t size) {
  char last = '\n';
  if (size > 0 && pread(file.Number(), &last, 1, size - 1) != 1) return {};
  if (last == '\n') return {};
  return last == '\r' ? "\n" : "\r\n";
}

int WriteAndFlush(const Descriptor& file, std::string_view bytes) {
  const int error = WriteAll(file, bytes);
  return error == 0 && fsync(file.Number()) != 0 ? errno : error;
}

}  // namespace

void AppendLinesTo(const std::string& path, std::string_view lines, mode_t newMode) {
  if (!MayReplace(path)) throw RuntimeError(ErrorNumber::PathAccess);
  const Descriptor file(open(path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, newMode));
  if (!file.IsOpen()) throw AccessError(errno, path);
  if (lines.empty()) return;
  // Appending alone would need no lock, but two writers might both end the last line.
  AwaitLock(file);
  const off_t size = lseek(file.Number(), 0, SEEK_END);
  const std::string bytes = std::string(MissingEnd(file, size)).append(lines);
  const int error = WriteAndFlush(file, bytes);
  if (error == 0) return;
  if (ftruncate(file.Number(), size) != 0) throw AccessError(errno, path);
  throw AccessError(error, path);
}

}  // namespace lumenote
