// A private folder that lasts as long as its owner.
#pragma once
#include <optional>
#include <string>

#include "backends/posix/files/Descriptor.h"

namespace lumenote {

/// A new folder in $TMPDIR, else /tmp, that only this user may enter; removed with all it holds at
/// the end, unless it is kept. Kept folders, and those of a process that crashed, are removed when
/// another one is made a week after the last change at any depth in them. A mark inside tells them
/// from other folders: without it none is removed.
class TemporaryFolder {
 public:
  static constexpr const char* kMarkName = ".lumenote-temporary";

  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  /// Native, absolute, without a closing slash; empty when no folder could be made.
  const std::string& Path() const { return path_; }
  /// Leaves the folder behind at the end, for a program that still works in it.
  void Keep() { keep_ = true; }

 private:
  std::string path_;
  std::optional<Descriptor> lock_;  // tells the others that the folder has an owner
  bool keep_ = false;
};

}  // namespace lumenote
