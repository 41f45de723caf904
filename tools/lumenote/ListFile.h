// A correction list in a native file.
#pragma once
#include <string>
#include <vector>

#include "backends/posix/saving/PosixFiles.h"
#include "ocr/CorrectionList.h"

namespace lumenote::tool {

/// The list that a command was given; without a name one that has no pairs. It has been read to its
/// end, so a list that cannot be is told before any note is touched.
class ListFile {
 public:
  /// `name` is a native path or empty. Raises `Failure`.
  explicit ListFile(const std::string& name);

  const std::vector<Correction>& Pairs() const { return pairs_; }
  /// The list for procedures that read it themselves: `Path()` in `Disk()`.
  Files& Disk() { return disk_; }
  const std::u16string& Path() const { return path_; }

 private:
  void ReadPairs(const std::string& name, const std::string& bytes);

  PosixFiles disk_{DrivePaths{"/"}};
  std::u16string path_;
  std::vector<Correction> pairs_;
};

}  // namespace lumenote::tool
