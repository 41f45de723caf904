// The special folders of the user, and folders that a program chooses itself.
#pragma once
#include <string>
#include <utility>

#include "backends/posix/DrivePaths.h"
#include "backends/posix/TemporaryFolder.h"
#include "platform/Folders.h"

namespace lumenote {

/// The temporary folder belongs to this object alone: two never meet in one file, and it is removed
/// with what is left in it at the end, unless it is kept.
class PosixFolders : public Folders {
 public:
  explicit PosixFolders(DrivePaths drives) : drives_(std::move(drives)) {}

  std::u16string Documents() const override;
  std::u16string Temp() const override;

  /// Leaves the temporary folder behind at the end, for a program that still works in it.
  void KeepTemp() { temp_.Keep(); }

 private:
  DrivePaths drives_;
  TemporaryFolder temp_;
};

/// Folders that do not depend on who runs, for sandboxes.
class FixedFolders : public Folders {
 public:
  /// Drive paths; `temp` ends in a backslash.
  FixedFolders(std::u16string documents, std::u16string temp)
      : documents_(std::move(documents)), temp_(std::move(temp)) {}

  std::u16string Documents() const override { return documents_; }
  std::u16string Temp() const override { return temp_; }

 private:
  std::u16string documents_;
  std::u16string temp_;
};

}  // namespace lumenote
