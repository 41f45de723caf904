// The user's special folders, and folders chosen by a program.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "backends/posix/folders/DrivePaths.h"
#include "backends/posix/folders/TemporaryFolder.h"
#include "platform/Folders.h"

namespace lumenote {

/// Temporary folders are created on first use, and retried while that fails. If programs still work
/// in one when its control is destroyed, it lives as long as this object, and permanently if they
/// outlive that too.
class PosixFolders : public Folders {
 public:
  /// `inUse` tells whether programs still work with the files that they were given.
  explicit PosixFolders(
      DrivePaths drives, std::function<bool()> inUse = [] { return false; })
      : drives_(std::move(drives)), inUse_(std::move(inUse)) {}
  PosixFolders(const PosixFolders&) = delete;
  PosixFolders& operator=(const PosixFolders&) = delete;
  ~PosixFolders() override;

  std::u16string Documents() const override;
  std::unique_ptr<TempFolder> MakeTemp() override;

 private:
  class Temp;
  void TakeBack(std::unique_ptr<TemporaryFolder> folder);

  DrivePaths drives_;
  std::function<bool()> inUse_;
  std::vector<std::unique_ptr<TemporaryFolder>> left_;  // of destroyed controls
};

/// Fixed folders, for sandboxes.
class FixedFolders : public Folders {
 public:
  /// Drive paths; `temp` ends in a backslash.
  FixedFolders(std::u16string documents, std::u16string temp)
      : documents_(std::move(documents)), temp_(std::move(temp)) {}

  std::u16string Documents() const override { return documents_; }
  std::unique_ptr<TempFolder> MakeTemp() override { return std::make_unique<Temp>(temp_); }

 private:
  class Temp final : public TempFolder {
   public:
    explicit Temp(std::u16string path) : path_(std::move(path)) {}
    std::u16string Path() const override { return path_; }
    void Keep() override {}

   private:
    std::u16string path_;
  };

  std::u16string documents_;
  std::u16string temp_;
};

}  // namespace lumenote
