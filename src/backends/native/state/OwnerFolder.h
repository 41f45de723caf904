// A sub-folder with a living or dead owner.
#pragma once
#include <memory>
#include <string>
#include <vector>

#include "backends/native/files/OpenFile.h"

namespace lumenote {

/// Owns a folder by a lock on its mark file: the system releases the lock when the owner dies, even
/// if another process then gets its number. At the end the folder is removed if only the mark is
/// left in it. All paths are native.
class OwnerFolder {
 public:
  /// Creates a folder in `parent`, accessible to this user only. Raises PathAccess.
  explicit OwnerFolder(const std::string& parent);
  OwnerFolder(const OwnerFolder&) = delete;
  OwnerFolder& operator=(const OwnerFolder&) = delete;
  ~OwnerFolder();

  /// Takes over the folders in `parent` whose owners are dead.
  static std::vector<std::unique_ptr<OwnerFolder>> TakeDead(const std::string& parent);

  const std::string& Path() const { return path_; }
  /// Whether the folder still exists.
  bool Exists() const { return IsOwn(mark_); }

 private:
  OwnerFolder(std::string path, OpenFile mark);
  void RemoveIfEmpty();

  std::string path_;
  OpenFile mark_;
  bool locked_;
};

}  // namespace lumenote
