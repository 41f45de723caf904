// The files of this system.
#pragma once
#include <utility>

#include "backends/native/folders/DrivePaths.h"
#include "platform/Files.h"

namespace lumenote {

class NativeStateFolder;

class NativeFiles : public Files {
 public:
  /// `backups` must outlive it; without it a file that a rename cannot replace is not written.
  explicit NativeFiles(DrivePaths drives, NativeStateFolder* backups = nullptr)
      : drives_(std::move(drives)), backups_(backups) {}

  bool Exists(std::u16string_view path) const override;
  bool IsReadOnly(std::u16string_view path) const override;
  FileTime ModificationTime(std::u16string_view path) const override;
  std::uint64_t Size(std::u16string_view path) const override;
  std::string ReadAll(std::u16string_view path) const override;
  bool SameFile(std::u16string_view one, std::u16string_view other) const override;

  std::shared_ptr<void> LockFolder(std::u16string_view path) const override;

  /// Writes through a symbolic link: the link stays, its target is replaced. Callable on any
  /// thread.
  void Write(std::u16string_view path, std::string_view bytes) override;
  void WriteNew(std::u16string_view path, std::string_view bytes, Permissions permissions) override;
  void AppendLines(std::u16string_view path, std::string_view lines) override;
  /// Removes a symbolic link itself, not its target.
  void Delete(std::u16string_view path, bool force) override;
  void Copy(std::u16string_view from, std::u16string_view to) override;
  /// Across file systems copies the file with all that belongs to it, then removes the original.
  void Move(std::u16string_view from, std::u16string_view to) override;

 private:
  DrivePaths drives_;
  NativeStateFolder* backups_;
};

}  // namespace lumenote
