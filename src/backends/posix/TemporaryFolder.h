// A private folder that lasts as long as its owner.
#pragma once
#include <string>

namespace lumenote {

/// A new folder in $TMPDIR, else /tmp, that only this user may enter; removed with all it holds at
/// the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  /// Native, absolute, without a closing slash; empty when no folder could be made.
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace lumenote
