// The state folder of a user or of a sandbox.
#pragma once
#include <atomic>
#include <memory>
#include <mutex>
#include <string>

#include "backends/native/folders/DrivePaths.h"
#include "backends/native/state/OwnerFolder.h"
#include "backends/native/state/StateCopy.h"
#include "platform/StateFolder.h"

namespace lumenote {

/// Has a sub-folder for each living object of this class, and the folder "rescue" for permanent
/// copies.
class NativeStateFolder final : public StateFolder {
 public:
  /// `path` is native. If it is empty, since the user has no state folder, everything raises
  /// PathAccess. `drives` translates native paths for display, where possible.
  NativeStateFolder(std::string path, DrivePaths drives)
      : path_(std::move(path)), drives_(std::move(drives)) {}

  /// The user's own; empty if there is none.
  static std::string OfUser();

  std::unique_ptr<NoteCopy> MakeCopy() override { return MakeStateCopy(); }
  /// The same with the backend's own type.
  std::unique_ptr<StateCopy> MakeStateCopy();
  void ClaimOrphans(const std::function<bool(const OrphanedCopy&)>& rescue) override;
  std::u16string KeepForGood(std::u16string_view name, std::string_view bytes) override;

 private:
  /// This object's sub-folder, created if missing.
  std::string Own();

  std::string path_;
  DrivePaths drives_;
  std::mutex access_;  // notes may be saved on any thread
  std::unique_ptr<OwnerFolder> own_;
  std::atomic<unsigned> copies_ = 0;
};

}  // namespace lumenote
