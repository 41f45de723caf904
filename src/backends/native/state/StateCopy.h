// A copy of a note in its owner's folder.
#pragma once
#include <functional>
#include <optional>
#include <string>

#include "backends/native/files/OpenFile.h"
#include "platform/StateFolder.h"

namespace lumenote {

/// NUMBER.note holds the content, NUMBER.origin the path it is a copy of, and NUMBER.new the copy
/// being written. `Commit` does not wait for the disk: the copy survives the program, but not a
/// power cut in the next seconds. `CommitToDisk` waits.
class StateCopy final : public NoteCopy {
 public:
  /// `folder` returns the native path of the owner's folder, creating it if missing, or raises.
  StateCopy(std::function<std::string()> folder, unsigned number)
      : folder_(std::move(folder)), number_(number) {}
  StateCopy(const StateCopy&) = delete;
  StateCopy& operator=(const StateCopy&) = delete;
  ~StateCopy() override;

  void Begin(std::u16string_view origin) override;
  /// The same for an origin in UTF-8, which may be a native path.
  void BeginFor(const std::string& origin);
  void Append(std::string_view bytes) override;
  void Commit() override;
  void CommitToDisk();
  void Remove() override;
  void Leave() override { leave_ = true; }
  /// Native path of the content.
  std::string Path() const { return base_ + ".note"; }

  /// Passes on the copies in a dead owner's folder; see `StateFolder::ClaimOrphans`.
  static void PassOrphans(const std::string& folder,
                          const std::function<bool(const OrphanedCopy&)>& rescue);

 private:
  void Drop();
  void Check(int error);

  std::function<std::string()> folder_;
  unsigned number_;
  std::string base_;    // of the file names, once there is a copy
  std::string origin_;  // as stored in the folder
  std::optional<OpenFile> file_;
  bool leave_ = false;
};

}  // namespace lumenote
