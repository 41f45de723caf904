// A correction list in a native file.
#pragma once
#include <string>
#include <vector>

#include "ocr/CorrectionList.h"

namespace lumenote::tool {

/// The list that a command was given; without a name one that has no pairs. It has been read to its
/// end, so a list that cannot be is told before any note is touched.
class ListFile {
 public:
  /// `name` is a native path, "-" for standard input, or empty. Raises `Failure`.
  explicit ListFile(const std::string& name);

  const std::string& Bytes() const { return bytes_; }
  const std::vector<Correction>& Pairs() const { return pairs_; }

 private:
  std::string bytes_;
  std::vector<Correction> pairs_;
};

}  // namespace lumenote::tool
