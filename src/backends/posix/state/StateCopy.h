// A copy of a note in the folder of its owner.
#pragma once
#include <functional>
#include <optional>
#include <string>

#include "backends/posix/files/Descriptor.h"
#include "platform/StateFolder.h"

namespace lumenote {

/// NUMBER.note holds the content and NUMBER.origin says what it is a copy of; NUMBER.new is one
/// that is being written. `Commit` leaves it to the system when the bytes reach the disk, so the
/// copy outlives the program but not a power cut in the next seconds; `CommitToDisk` waits for
/// them.
class StateCopy final : public NoteCopy {
 public:
  /// `folder` gives the native path of the owner's folder, made when it is missing, or raises.
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

  /// The copies in a folder of a dead owner; see `StateFolder::ClaimOrphans`.
  static void HandOver(const std::string& folder,
                       const std::function<bool(const OrphanedCopy&)>& rescue);

 private:
  void Drop();
  void Check(int error);

  std::function<std::string()> folder_;
  unsigned number_;
  std::string base_;    // of the files' names, once there is one
  std::string origin_;  // as it is told in the folder
  std::optional<Descriptor> file_;
  bool leave_ = false;
};

}  // namespace lumenote
