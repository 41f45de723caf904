// A single write at the end of the file, under a lock.
#include "backends/native/saving/AppendFile.h"

#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"
#include "backends/native/files/FileLock.h"
#include "backends/native/saving/SaveFile.h"

namespace lumenote {
namespace {

/// What the last line lacks of its CR LF.
std::string_view MissingEnd(const OpenFile& file) {
  const char last = LastByteOf(file).value_or('\n');
  if (last == '\n') return {};
  return last == '\r' ? "\n" : "\r\n";
}

int WriteAndFlush(const OpenFile& file, std::string_view bytes) {
  const int error = WriteAll(file, bytes);
  return error == 0 ? Flush(file) : error;
}

}  // namespace

void AppendLinesTo(const std::string& path, std::string_view lines) {
  if (!MayReplace(path)) throw RuntimeError(ErrorNumber::PathAccess);
  const OpenFile file = OpenToAppend(path);
  if (!file.IsOpen()) throw AccessError(LastError(), path);
  if (lines.empty()) return;
  // Appending alone would need no lock, but two writers might both end the last line.
  AwaitLock(file);
  const std::optional<std::uint64_t> size = SizeOf(file);
  if (!size) throw AccessError(LastError(), path);
  const int error = WriteAndFlush(file, std::string(MissingEnd(file)).append(lines));
  if (error == 0) return;
  const int restored = Resize(file, *size);
  throw AccessError(restored == 0 ? error : restored, path);
}

}  // namespace lumenote
