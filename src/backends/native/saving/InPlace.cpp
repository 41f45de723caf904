// Backs up, overwrites, restores.
#include "backends/native/saving/InPlace.h"

#include <memory>

#include "backends/native/files/Disk.h"
#include "backends/native/files/Errors.h"
#include "backends/native/files/FileLock.h"
#include "backends/native/state/NativeStateFolder.h"

namespace lumenote {
namespace {

/// Returns 0 or the system's error number.
int Overwrite(const OpenFile& file, std::string_view bytes) {
  if (const int error = SeekToStart(file)) return error;
  if (const int error = WriteAll(file, bytes)) return error;
  if (const int error = Resize(file, bytes.size())) return error;
  return Flush(file);
}

std::unique_ptr<StateCopy> BackUp(const std::string& target, std::string_view bytes,
                                  NativeStateFolder& backups) {
  std::unique_ptr<StateCopy> copy = backups.MakeStateCopy();
  copy->BeginFor(target);
  copy->Append(bytes);
  copy->CommitToDisk();
  return copy;
}

}  // namespace

void WriteInPlace(const std::string& target, std::string_view bytes, NativeStateFolder& backups) {
  const OpenFile file = OpenToWrite(target);
  if (!file.IsOpen()) throw AccessError(LastError(), target);
  // Another save may have replaced the file while this one waited for the lock.
  if (AwaitLock(file) == LockResult::Taken || !IsNameOf(target, file))
    throw RuntimeError(ErrorNumber::PathAccess);
  const std::string old = ReadWholeFile(target);
  const std::unique_ptr<StateCopy> backup = BackUp(target, old, backups);
  // A full disk is better found before the old content is harmed.
  if (const int error = Reserve(file, bytes.size())) {
    Resize(file, old.size());
    throw AccessError(error, target);
  }
  const int error = Overwrite(file, bytes);
  if (error == 0) return;
  if (Overwrite(file, old) != 0) backup->Leave();
  throw AccessError(error, target);
}

}  // namespace lumenote
