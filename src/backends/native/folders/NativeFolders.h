// The user's special folders.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "backends/native/folders/DrivePaths.h"
#include "backends/native/folders/TemporaryFolder.h"
#include "platform/Folders.h"

namespace lumenote {

/// Temporary folders are created on first use, and retried while that fails. If programs still work
/// in one when its control is destroyed, it lives as long as this object, and permanently if they
/// outlive that too.
class NativeFolders : public Folders {
 public:
  /// `inUse` tells whether programs still work with the files that they were given.
  explicit NativeFolders(
      DrivePaths drives, std::function<bool()> inUse = [] { return false; })
      : drives_(std::move(drives)), inUse_(std::move(inUse)) {}
  NativeFolders(const NativeFolders&) = delete;
  NativeFolders& operator=(const NativeFolders&) = delete;
  ~NativeFolders() override;

  std::u16string Documents() const override;
  std::unique_ptr<TempFolder> MakeTemp() override;

 private:
  class Temp;
  void TakeBack(std::unique_ptr<TemporaryFolder> folder);

  DrivePaths drives_;
  std::function<bool()> inUse_;
  std::vector<std::unique_ptr<TemporaryFolder>> left_;  // of destroyed controls
};

}  // namespace lumenote
