// A correction list in a native file.
#pragma once
#include <string>
#include <vector>

#include "ocr/CorrectionList.h"

namespace lumenote::tool {

/// A command's correction list; without a name it is empty. Parsed completely on construction, so
/// that an invalid list is reported before any note is changed.
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
