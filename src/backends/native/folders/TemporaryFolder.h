// A private folder with the lifetime of its owner.
#pragma once
#include <optional>
#include <string>

#include "backends/native/files/OpenFile.h"

namespace lumenote {

/// A new folder in one of the `TemporaryParents`, accessible to this user only; removed with its
/// content at the end, unless kept. Kept folders, and those of crashed processes, are removed when
/// another one is created a week after the last change at any depth in them. Only folders that
/// contain our mark are ever removed.
class TemporaryFolder {
 public:
  static constexpr const char* kMarkName = ".lumenote-temporary";

  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  /// Native, absolute, without a trailing slash; empty if the folder could not be created.
  const std::string& Path() const { return path_; }
  /// Leaves the folder behind, for a program that still works in it.
  void Keep() { keep_ = true; }

 private:
  std::string path_;
  std::optional<OpenFile> mark_;  // locked: shows other processes that the folder has an owner
  bool keep_ = false;
};

}  // namespace lumenote
